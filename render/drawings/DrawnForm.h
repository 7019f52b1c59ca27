// DrawnForm: a form as its drawing sees it. The record gives the shape, the boxes give the texts.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "core/Session.h"
#include "services/host/Form.h"

namespace lithmark {

// A box that can be reached.
struct DrawnBox {
    const Control* Of = nullptr;
    std::string Symbol;  // as reports write it
    QString Text, Unit;  // a number too long for a drawing is written shorter; the unit is without its brackets
    bool Focused = false;
    bool Faulty = false;  // holds nothing that could be stored
};

class DrawnForm {
  public:
    // Of a picture. One that shows no problem has no boxes.
    explicit DrawnForm(const Control& picture);

    // The form as it stands now. The record stays the last good one while a box is faulty.
    void Follow();

    const SessionRecord& Record() const noexcept { return record_; }
    // Nothing when the form has no such box, or one that is out of sight or does not count at present.
    std::optional<DrawnBox> Find(const std::string& name) const;
    bool Has(const std::string& name) const { return Find(name).has_value(); }
    // All boxes of numbers that can be reached.
    std::vector<DrawnBox> Boxes() const;

  private:
    DrawnBox BoxOf(const Control& control) const;

    const Figure* const figure_;
    SessionRecord record_;
    bool good_ = false;  // the record was once free of faults
    std::vector<const Control*> faulty_;
};

}  // namespace lithmark
