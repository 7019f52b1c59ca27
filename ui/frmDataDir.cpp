#include "ui/frmDataDir.h"

#include <filesystem>
#include <system_error>

#include "base/Utf8.h"
#include "core/Session.h"
#include "files/CommonStep.h"
#include "files/SettingsFiles.h"
#include "services/SharedServices.h"
#include "services/storage/FileNames.h"
#include "services/storage/UserFolders.h"

namespace lithmark {

namespace {

constexpr long kPackingOn = 1 | 2 | 4, kPackingOff = 0;

bool DirectoryExists(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_directory(MappedFileName(path), error);
}

}  // namespace

frmDataDir::frmDataDir() : KeptForm("frmDataDir") {
    CmdBrowse.OnClick = [this] { CmdBrowse_Click(); };
    cmdSave.OnClick = [this] { cmdSave_Click(); };
    CmdCancel.OnClick = [this] { CmdCancel_Click(); };
    cmdHelp.OnClick = [this] { cmdHelp_Click(); };
    SetFields({FieldRow({}, {}, txtDataDir, {}, {}, {}, {Press(cmdSave)})});
}

void frmDataDir::Load() {
    SharedServices().PrepareForm(*this);
    Caption = Text(140161_text);
    SetCaptions({{Frame3D1, 140161_text},
                 {FraCompressFlag, 10271_text},
                 {chkCompressFlag[0], 10271_text},
                 {cmdSave, 111_text, Styles::Button},
                 {CmdCancel, 7_text, Styles::Button},
                 {cmdHelp, 8_text, Styles::Button}});
    CmdBrowse.Caption = "...";
    // Ticked when projects are packed as they are left. Without a setting they are not.
    const bool set = ReadDataDirSettings(txtDataDir.Text);
    chkCompressFlag[0].Value = set && Session.CompressFlag != kPackingOff;
    OfferUnsavedInput({});
}

void frmDataDir::CmdBrowse_Click() {
    UnderCommonStep([&] {
        if (const auto chosen = CurrentHost().BrowseFolder(txtDataDir.Text)) txtDataDir.Text = WithSeparator(*chosen);
    });
}

void frmDataDir::cmdSave_Click() {
    Session.FileSaved = false;
    UnderCommonStep([&] { StoreDataDir(); });
    if (!Session.FileSaved) return;
    InputIsSaved();
    Unload();
}

void frmDataDir::StoreDataDir() {
    const std::string& path = txtDataDir.Text;
    MakeProjectsDir(path);
    if (!DirectoryExists(path)) {
        SharedServices().ShowMessageBox(Text(160030_text), Text(190008_text, {{"|1", PathExcerpt(path)}}),
                                        MessageIcon::Information);
        CurrentHost().SetFocus(*this, txtDataDir);
        return;
    }
    Session.CompressFlag = chkCompressFlag[0].Value ? kPackingOn : kPackingOff;
    WriteDataDirSettings(path);
}

void frmDataDir::cmdHelp_Click() {
    UnderCommonStep([] { SharedServices().ShowHelpTopic("7_2"); });
}

}  // namespace lithmark
