// frmSplash: the program's name and version during the start. It stays three seconds at least, unless the user sends it
// away.
#pragma once

#include <functional>
#include <string>

#include "ui/model/Controls.h"

namespace lithmark {

class frmSplash : public Form {
  public:
    // Milliseconds of a clock that never goes back.
    explicit frmSplash(std::function<long long()> milliseconds);

    PictureBox imgLogo{*this, "imgLogo"};
    // Description, program, authors, two lines of the maker, version.
    TextLabel lblPlatform{*this, "lblPlatform"}, Label1{*this, "Label1"}, Label3{*this, "Label3"},
        Label4{*this, "Label4"}, Label5{*this, "Label5"}, lblVersion{*this, "lblVersion"};

    // Once the program is ready: unloading then waits for the three seconds to end, or for the user.
    static constexpr const char* kMayEnd = "Start Prog";
    std::string Tag;

    void Load() override;
    void Unloading() override;
    // A key, or a click on the form or on anything in it: ends the form, and the wait too.
    void Dismiss();

  private:
    const std::function<long long()> milliseconds_;
    long long loadedAt_ = 0;
    bool dismissed_ = false;
};

}  // namespace lithmark
