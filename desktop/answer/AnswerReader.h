// What the command line prints as JSON, as the answer needs it.
#pragma once

#include <QByteArray>

#include "ui/answer/AnswerRun.h"

namespace lithmark {

// The output of `report` or `study` with "--format json". What it does not hold stays empty.
CommandOutput ReadCommandOutput(const QByteArray& json);

}  // namespace lithmark
