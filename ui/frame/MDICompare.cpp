// The frame's command that compares two projects.
#include <optional>

#include "core/Session.h"
#include "files/CommonStep.h"
#include "services/FileDialogs.h"
#include "services/SharedServices.h"
#include "services/storage/FileNames.h"
#include "ui/compare/Comparison.h"
#include "ui/frame/MDITools.h"

namespace lithmark {

namespace {

std::optional<std::string> AskForProject(const std::string& title) {
    std::string file, dir, name;
    if (!FileDialogs().OpenFileDialog(file, Session.DataDir, dir, name, "*.PO3", title)) return std::nullopt;
    return file;
}

}  // namespace

void MDITools::mnuCompare_Click() {
    UnderCommonStep([&] {
        std::optional<std::string> one;
        std::string name, dir;
        if (ProjectOpen())
            one = MappedFileName(Session.DataDir + Session.ProjectName + ".PO3");
        else
            one = AskForProject(Text(913536_text));
        if (!one) return;
        FileDialogs().SplitProjectPath(*one, dir, name);
        const auto other = AskForProject(Text(913537_text, {{"|1", name}}));
        if (!other) return;
        SharedServices().SetPointer(PointerShape::Hourglass);
        const PairReading reading = ReadPair(*one, *other);
        SharedServices().SetPointer(PointerShape::Default);
        if (!reading.Pair)
            SharedServices().ShowMessageBox(Text(160030_text), reading.Fault, MessageIcon::Exclamation);
        else if (window_ != nullptr)
            window_->ShowComparison(*reading.Pair);
    });
}

}  // namespace lithmark
