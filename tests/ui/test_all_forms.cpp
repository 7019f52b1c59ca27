// What holds for every form.
#include <map>
#include <set>
#include <string>

#include "AllForms.h"
#include "FormTest.h"
#include "core/SessionFields.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class EveryForm : public FormTest {
  protected:
    // Shows each form of the program in turn in a fresh session.
    void ForEach(const std::function<void(const FormRow&, Form&)>& script) {
        const Language language = LanguageTexts().Current();
        for (const FormRow& row : AllForms()) {
            StartIn(language);
            Session.ProblemType = row.ProblemType;
            const auto form = row.Make();
            SCOPED_TRACE(form->Name + " of problem " + std::to_string(row.ProblemType));
            host.OnForm([&](Form& shown) { script(row, shown); });
            CurrentHost().ShowForm(*form);
        }
    }
};

std::map<std::string, std::string> StoredFields() {
    std::map<std::string, std::string> fields;
    for (const SessionField& field : SessionFields()) fields[std::string(field.Name)] = SessionFieldText(field.Ref);
    return fields;
}

bool HasCaption(const Control& control) {
    switch (control.Kind) {
        case ControlKind::TextLabel:
        case ControlKind::Option:
        case ControlKind::CheckBox:
        case ControlKind::Button:
        case ControlKind::Frame:
            return true;
        default:
            return false;
    }
}

TEST_F(EveryForm, HasCaptionsInThreeLanguagesAndRunsInItsDirection) {
    for (const Language language : {Language::German, Language::English, Language::Arabic}) {
        LanguageTexts().SetCurrent(language);
        ForEach([&](const FormRow&, Form& form) {
            EXPECT_EQ(form.RightToLeft, language == Language::Arabic);
            EXPECT_THAT(form.Caption, Not(IsEmpty()));
            for (const Control* control : form.Controls()) {
                if (!HasCaption(*control) || !control->Visible) continue;
                EXPECT_THAT(control->Caption, Not(IsEmpty())) << control->Name;
                EXPECT_EQ(control->Caption.find('?'), std::string::npos) << control->Name << ": " << control->Caption;
            }
        });
    }
}

TEST_F(EveryForm, HasControlsOfDifferentNames) {
    ForEach([](const FormRow&, Form& form) {
        std::set<std::string> names;
        for (const Control* control : form.Controls()) EXPECT_TRUE(names.insert(control->Name).second) << control->Name;
    });
}

TEST_F(EveryForm, HasButtonsThatDoSomething) {
    ForEach([](const FormRow&, Form& form) {
        for (const Control* control : form.Controls())
            if (control->Kind == ControlKind::Button) {
                EXPECT_TRUE(control->OnClick) << control->Name;
            }
    });
}

TEST_F(EveryForm, StoresNothingWhenItIsClosed) {
    ForEach([](const FormRow& row, Form& form) {
        const auto before = StoredFields();
        for (Control* control : form.Controls()) {
            if (!control->Visible || !control->Enabled || control->ReadOnly) continue;
            if (control->Kind == ControlKind::TextBox) Type(form, control->Name, "0.375");
            if (control->Kind == ControlKind::Option || control->Kind == ControlKind::CheckBox)
                Click(form, control->Name);
        }
        Click(form, row.CloseButton);
        EXPECT_TRUE(form.Unloaded());
        auto after = StoredFields();
        for (const std::string& field : row.AtOnce) after[field] = before.at(field);
        EXPECT_EQ(after, before);
        EXPECT_FALSE(Session.DialogOk);
        EXPECT_FALSE(Session.FileSaved);
    });
    EXPECT_THAT(DataFiles(), IsEmpty());
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_THAT(host.Questions, IsEmpty());
}

TEST_F(EveryForm, LeadsEnterFromEachOfItsBoxesToOneOfItsControls) {
    ForEach([](const FormRow&, Form& form) {
        for (Control* control : form.Controls())
            if (control->Kind == ControlKind::TextBox) {
                EXPECT_TRUE(control->OnEnter) << control->Name;
            }
        const auto* fields = dynamic_cast<FieldForm*>(&form);
        if (fields == nullptr) return;
        const auto isOfForm = [&](const Control* control) { return form.Find(control->Name) == control; };
        for (const FieldRow& row : fields->Fields()) {
            EXPECT_TRUE(isOfForm(&row.Box)) << row.Box.Name;
            if (row.Enter.empty()) continue;
            EXPECT_EQ(row.Enter.back().IfUsable, nullptr) << "Enter in " << row.Box.Name << " may lead nowhere";
            for (const EnterStep& step : row.Enter) EXPECT_TRUE(isOfForm(step.To)) << step.To->Name;
        }
    });
}

TEST_F(EveryForm, ShowsEachFieldOnceInABoxOfItsOwn) {
    ForEach([](const FormRow&, Form& form) {
        const auto* fields = dynamic_cast<FieldForm*>(&form);
        if (fields == nullptr) return;
        std::set<const Control*> boxes;
        for (const FieldRow& row : fields->Fields()) {
            EXPECT_TRUE(boxes.insert(&row.Box).second) << row.Box.Name;
            EXPECT_EQ(form.Find(row.Box.Name), &row.Box);
            if (!row.Field.Exists()) continue;
            EXPECT_THAT(row.Box.Text, Not(IsEmpty())) << row.Box.Name;
            EXPECT_THAT(row.MessageName(), Not(IsEmpty())) << row.Box.Name;
        }
    });
}

// Nothing that a user does may end the program, whatever the machine refuses.
TEST_F(EveryForm, TellsWhatFailsInItsEventsAndThrowsNothing) {
    struct MessagesOnly : Host {
        int Messages = 0;
        void ShowMessage(const std::string&, const std::string&, MessageIcon) override { ++Messages; }
    };
    for (const FormRow& row : AllForms()) {
        StartIn(Language::English);
        Session.ProblemType = row.ProblemType;
        const auto form = row.Make();
        MessagesOnly bare;
        SetCurrentHost(&bare);
        form->Load();
        for (Control* control : form->Controls()) {
            if (!control->Visible || !control->Enabled) continue;
            SCOPED_TRACE(form->Name + "." + control->Name);
            if (control->Kind == ControlKind::Button) {
                EXPECT_NO_THROW(control->OnClick());
            }
            if (control->OnEnter) {
                EXPECT_NO_THROW(control->OnEnter());
            }
            form->Reopen();
        }
        // Help, folders, files and the viewer are all refused by this host.
        if (row.Help != HelpBy::Nothing) {
            EXPECT_GT(bare.Messages, 0) << form->Name;
        }
        SetCurrentHost(&host);
    }
}

TEST_F(EveryForm, OpensUnchanged) {
    ForEach([](const FormRow&, Form& form) { EXPECT_FALSE(form.Modified()); });
}

TEST_F(EveryForm, HasHelpUnderItsCaptionInThreeLanguages) {
    std::map<std::string, std::set<std::string>> texts;
    int forms = 0;
    for (const Language language : {Language::German, Language::English, Language::Arabic}) {
        LanguageTexts().SetCurrent(language);
        ForEach([&](const FormRow& row, Form& form) {
            const std::size_t shown = host.HelpTexts.size(), pages = host.HelpTopics.size();
            ++forms;
            if (row.Help == HelpBy::Nothing) {
                EXPECT_EQ(form.Find("cmdHelp"), nullptr);
                return;
            }
            Click(form, "cmdHelp");
            if (row.Help == HelpBy::Page) {
                EXPECT_EQ(host.HelpTopics.size(), pages + 1);
                return;
            }
            ASSERT_EQ(host.HelpTexts.size(), shown + 1);
            EXPECT_EQ(host.HelpTexts.back().Title, form.Caption);
            EXPECT_THAT(host.HelpTexts.back().Text, Not(IsEmpty()));
            texts[form.Name + std::to_string(row.ProblemType)].insert(host.HelpTexts.back().Text);
        });
    }
    EXPECT_EQ(forms, 3 * static_cast<int>(AllForms().size()));
    for (const auto& [name, ofForm] : texts) EXPECT_EQ(ofForm.size(), 3u) << name;
}

}  // namespace
}  // namespace lithmark::tests
