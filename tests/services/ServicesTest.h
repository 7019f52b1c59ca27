// Settings in a folder of the test's own, English, a scripted host.
#pragma once

#include <gtest/gtest.h>

#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "support/Files.h"
#include "support/ScriptedHost.h"

namespace lithmark::tests {

class ServicesTest : public testing::Test {
  protected:
    ServicesTest() {
        SharedServices().UseSettingsDirectory(folder.Dir());
        LanguageTexts().SetCurrent(Language::English);
    }
    ~ServicesTest() override {
        SharedServices().UseSettingsDirectory("");
        SharedServices().DecimalSign = '.';
        LanguageTexts().SetCurrent(Language::English);
    }

    TestFolder folder;
    ScriptedHost host;
};

}  // namespace lithmark::tests
