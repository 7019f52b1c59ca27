// frmProblemType: the project's data (order, date, description) and the choice of its problem.
#pragma once

#include <functional>

#include "core/Problems.h"
#include "ui/model/KeptForm.h"

namespace lithmark {

class frmProblemType : public KeptForm {
  public:
    // `saved` runs when the data of the open project have been saved: its name and its problem may be new. A project
    // without a name is proposed with a problem.
    explicit frmProblemType(std::function<void()> saved = {}, int proposed = Problem::SoilStress);

    FrameBox Frame3D1{*this, "Frame3D1"};
    TextLabel lblAuftrag{*this, "lblAuftrag"};
    TextBox txtAuftr{*this, "txtAuftr"};
    TextLabel lblDatum{*this, "lblDatum"};
    TextBox txtDatum{*this, "txtDatum"};
    // Its text is a date as TextTools reads and writes it.
    DatePicker DTPicker1{*this, "DTPicker1"};
    TextLabel lblProjekt{*this, "lblProjekt"};
    TextBox txtProj{*this, "txtProj"};
    FrameBox frmSelectOption{*this, "frmSelectOption"};
    TextLabel lblItem{*this, "lblItem"};
    ComboBox cmbItem{*this, "cmbItem"};
    Button cmdSave{*this, "cmdSave"}, cmdSaveAs{*this, "cmdSaveAs"}, cmdOpen{*this, "cmdOpen"},
        CmdCancel{*this, "CmdCancel"}, cmdHelp{*this, "cmdHelp"};

    void Load() override;
    // Left without a save, the session keeps the project data that it had.
    void Unloading() override;

    void DTPicker1_Change();
    // Stores the data and closes; a project without a name gets one first.
    void cmdSave_Click();
    void cmdSaveAs_Click();
    void cmdOpen_Click();
    void CmdCancel_Click();
    void cmdHelp_Click();

  private:
    void ShowProjectFields();
    void StoreProjectFields();

    struct ProjectData {
        int ProblemType = Problem::SoilStress;
        std::string Auftr, Datum, Proj;
    };
    static ProjectData DataOfSession();
    static void GiveToSession(const ProjectData& data);
    std::string SaveUnderNewName();

    const std::function<void()> tellSaved_;
    const int proposed_;
    ProjectData before_;
    bool saved_ = false;
};

}  // namespace lithmark
