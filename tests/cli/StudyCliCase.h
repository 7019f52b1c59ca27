// What the tests of the command study share.
#pragma once

#include "cli/CliCase.h"

namespace lithmark::tests {

class CliStudy : public CliTest {
  protected:
    // The rows as objects; some may have aborted.
    Json Study(const std::string& project, const std::vector<std::string>& more) const {
        const CliResult result = Run(With({"study", project, "--format", "json"}, more));
        EXPECT_THAT(result.Status, testing::AnyOf(0, 3, 4)) << result.Err;
        return Json::parse(result.Out);
    }
    // Lines of the table, the head ahead of them.
    std::vector<std::string> Table(const std::string& project, const std::vector<std::string>& more) const {
        return LinesOf(Run(With({"study", project}, more)).Out);
    }
};

}  // namespace lithmark::tests
