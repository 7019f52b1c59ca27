// What the tests of studies share: a project of each problem in Session, and a pool of workers on it.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/Catalogue.h"
#include "core/Session.h"
#include "core/StartSession.h"
#include "kernels/RunProject.h"
#include "services/texts/LanguageTexts.h"
#include "study/WorkerPool.h"

namespace lithmark::tests {

// The defaults of a problem, as a new project has them.
inline void StartProblem(int problemType) {
    LanguageTexts().SetCurrent(Language::English);
    StartSession();
    Session.ProblemType = problemType;
    SetProblemDefaults();
    SetDerivedFields(Session);
}

inline std::vector<Take> TakesOf(int problemType, const std::vector<std::string>& names) {
    std::vector<Take> takes;
    for (const std::string& name : names) takes.push_back(ParseTake(problemType, name).value());
    return takes;
}

// Every result, lists as wholes.
inline std::vector<Take> AllTakes(int problemType) {
    std::vector<Take> takes;
    for (const RunResult& result : ResultsOf(problemType))
        takes.push_back(ParseTake(problemType, std::string(result.Name)).value());
    return takes;
}

// Clay of many thin sublayers under a circle of 32401 nodes: problem 4 takes seconds for it.
inline RowInput LongRow() {
    return {{"LoadType", "3"}, {"x", "1"}, {"PrefND", "180"}, {"h", "200"}, {"PrefDz", "0.05"}};
}

// The outcomes of all rows, by row.
inline std::vector<RowOutcome> OutcomesOf(WorkerPool& pool, const std::vector<RowInput>& rows) {
    std::vector<RowOutcome> outcomes(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) pool.Add(i, rows[i]);
    std::vector<WorkerPool::Answer> answers;
    while (pool.Unanswered() > 0) pool.Collect(answers, 100);
    for (auto& answer : answers) outcomes[answer.Row] = std::move(answer.Outcome);
    return outcomes;
}

}  // namespace lithmark::tests
