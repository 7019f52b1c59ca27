// frmContour: the window of a raft's contour plot, with its check boxes and zoom buttons, and of the same values as a
// field. Whoever shows it draws the plot and its legend with `Plot`, `Field` and `Drawn` whenever `Drawings` has grown.
#pragma once

#include "contour/FieldPlot.h"
#include "ui/model/Controls.h"

namespace lithmark {

class frmContour : public Form {
  public:
    frmContour();

    FrameBox fraResult{*this, "fraResult"};
    PictureBox picBox{*this, "picBox"}, picBox2{*this, "picBox2"};  // the plot, the legend
    CheckBox chkColorContours{*this, "chkColorContours"}, chkDisplaylines{*this, "chkDisplaylines"},
        chkDrawGrid{*this, "chkDrawGrid"}, chkchkDisplayValues{*this, "chkchkDisplayValues"};
    CheckBox chkFineLabels{*this, "chkFineLabels"}, chkSection{*this, "chkSection"};
    ControlArray<OptionButton, 2> optView{*this, "optView"};  // ten classes, field
    Button cmdRedraw{*this, "cmdRedraw"}, cmdPrevious{*this, "cmdPrevious"}, cmdOriginal{*this, "cmdOriginal"};
    Button cmdULeft{*this, "cmdULeft"}, cmdURight{*this, "cmdURight"}, cmdLLeft{*this, "cmdLLeft"},
        cmdLRight{*this, "cmdLRight"};
    Button cmdok{*this, "cmdok"}, cmdHelp{*this, "cmdHelp"};

    void Load() override;
    // Reads the files of the run and starts from the original window. A failure is told; nothing is drawn then.
    void Activate() override;

    void chkColorContours_Click();
    void optView_Click();
    void chkSection_Click();
    void cmdRedraw_Click();
    void cmdPrevious_Click();
    void cmdOriginal_Click();
    void cmdok_Click() { Unload(); }
    void cmdHelp_Click();

    // What the check boxes ask for at the moment; they take effect with the next drawing.
    ContourOptions Wanted() const;
    bool WantsAnother() const {
        return Ready() && !(Wanted() == drawn_ && (ShowsField() || chkFineLabels.Value == fineDrawn_));
    }
    const ContourOptions& Drawn() const noexcept { return drawn_; }
    bool Ready() const noexcept { return drawings_ > 0; }
    // The unit of the caption, and the value of the plot at a place in it; nothing beside the raft.
    static std::string UnitShown();
    std::optional<double> ValueShown(double x, double y) const;
    // How often the plot was drawn anew.
    int Drawings() const noexcept { return drawings_; }

    // The second view: colours and round classes in the unit of the caption, and a section.
    bool ShowsField() const { return optView[1].Value; }
    const FieldPlot& Field() const { return field_.value(); }
    // Where the section lies; nothing where none is asked for.
    std::optional<FieldLine> Section() const;
    // The section between two places, held to the window. Two places that are the same leave it where it is.
    void SetSection(const FieldLine& line);

    BasContour Plot;

  private:
    void Zoom(ZoomCornerOf corner);
    void DrawAnew();

    std::optional<FieldPlot> field_;
    FieldLine section_;
    ContourOptions drawn_;
    bool fineDrawn_ = false;
    int drawings_ = 0;
};

}  // namespace lithmark
