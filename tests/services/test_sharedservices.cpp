
#include "services/ServicesTest.h"
#include "services/storage/DataFile.h"
#include "support/Languages.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class Services : public ServicesTest {};

// --- failures in words ---------------------------------------------------------------------------------------------

TEST_F(Services, EveryKindOfFailureIsASentenceInEveryLanguage) {
    SharedServices().SetCurrentFile("/data/Raft1.SSD");
    for (int kind = 0; kind <= static_cast<int>(FailureKind::Other); ++kind)
        for (const long line : {0L, 7L})
            for (const Language language : kLanguages) {
                LanguageTexts().SetCurrent(language);
                const std::string text =
                    SharedServices().FailureText(Failure(static_cast<FailureKind>(kind), "12x", line));
                EXPECT_THAT(text, AllOf(Not(HasSubstr("?")), Not(HasSubstr("|")), Not(HasSubstr("\n")))) << kind;
                EXPECT_GT(text.size(), 15u);
            }
}

TEST_F(Services, AFailureInAFileNamesFileLineAndWhatStandsThere) {
    SharedServices().SetCurrentFile("/data/Raft1.SSD");
    for (const Language language : kLanguages) {
        LanguageTexts().SetCurrent(language);
        EXPECT_THAT(SharedServices().FailureText(Failure(FailureKind::BadNumber, "12x", 7)),
                    AllOf(HasSubstr("/data/Raft1.SSD"), HasSubstr("7"), HasSubstr("12x")));
        EXPECT_THAT(SharedServices().FailureText(Failure(FailureKind::EndOfFile, "", 10)),
                    AllOf(HasSubstr("/data/Raft1.SSD"), HasSubstr("10")));
        EXPECT_THAT(SharedServices().FailureText(Failure(FailureKind::PermissionDenied)), HasSubstr("/data/Raft1.SSD"));
    }
}

TEST_F(Services, AFailureOfACalculationNamesNoFileAndAddsWhatTheKernelSays) {
    SharedServices().SetCurrentFile("/data/Raft1.SSD");
    EXPECT_EQ(SharedServices().FailureText(Failure(FailureKind::DivisionByZero)),
              "The calculation was stopped: division by zero.");
    EXPECT_EQ(SharedServices().FailureText(Failure(FailureKind::Overflow, "Sides need whole millimetres.")),
              "The calculation was stopped: a value became too large. Sides need whole millimetres.");
    EXPECT_THAT(SharedServices().FailureText(Failure(FailureKind::Overflow, "1E+39", 3)), HasSubstr("/data/Raft1.SSD"));
}

TEST_F(Services, ASystemErrorStandsInBracketsBehindTheSentence) {
    SharedServices().SetCurrentFile("/data/Raft1.SSD");
    EXPECT_EQ(SharedServices().FailureText(Failure(FailureKind::WriteError, "Input/output error")),
              "The file /data/Raft1.SSD cannot be written. (Input/output error)");
}

TEST_F(Services, AFailureIsShownUnderTheProgramsName) {
    SharedServices().ShowFileError(Failure(FailureKind::SingularMatrix));
    SharedServices().ShowFileError(Failure(FailureKind::Cancelled));
    ASSERT_THAT(host.Messages, SizeIs(2));
    EXPECT_EQ(host.Messages[0].Title, "Lithmark");
    EXPECT_EQ(host.Messages[0].Icon, MessageIcon::Exclamation);
    EXPECT_EQ(host.Messages[1].Icon, MessageIcon::Information);
}

// --- numbers in boxes ----------------------------------------------------------------------------------------------

struct NumberForm : Form {
    NumberForm() : Form("frmNumber") {}
    Control txt{*this, ControlKind::TextBox, "txt"};
};

bool Check(NumberForm& form, const std::string& typed, double lower, double upper, int kind = 2) {
    form.txt.Text = typed;
    return SharedServices().CheckNumber(form, form.txt, kind, upper, lower, "Poisson's ratio:");
}

TEST_F(Services, ANumberWithinItsLimitsPassesSilently) {
    NumberForm form;
    for (const char* typed : {"0", "0.5", " .25 ", "+0.1", "5E-1", "1d-3"}) EXPECT_TRUE(Check(form, typed, 0, 0.5));
    EXPECT_THAT(host.Messages, SizeIs(0));
    EXPECT_EQ(form.Focus, nullptr);
}

TEST_F(Services, ANumberOutOfItsLimitsOrNoNumberIsToldWithLabelRangeAndReasonAndGetsTheFocus) {
    const std::pair<const char*, const char*> cases[] = {
        {"0.6", "The value is too large."},
        {"-0.001", "The value is too small."},
        {"", "The box is empty."},
        {"abc", "\"abc\" is no number."},
        {"1,300", "The decimal sign is \".\"."},
        {"\u0661,\u0663\u0660\u0660", "The decimal sign is \".\"."},
        {"0,600", "The value is too large."},
        {"nan", "\"nan\" is no number."},
        {"inf", "\"inf\" is no number."},
        {"1e999", "\"1e999\" is no number."},
        {"0.3 kN", "\"0.3 kN\" is no number."},
    };
    for (const auto& [typed, reason] : cases) {
        NumberForm form;
        EXPECT_FALSE(Check(form, typed, 0, 0.5)) << typed;
        EXPECT_EQ(host.LastMessage().Text,
                  std::string("Poisson's ratio: Please enter a number from 0 to 0.5. ") + reason)
            << typed;
        EXPECT_EQ(form.Focus, &form.txt);
    }
}

TEST_F(Services, ALimitThatIsNoneIsNotTold) {
    NumberForm form;
    EXPECT_FALSE(Check(form, "0.1", 0.25, 1e38));
    EXPECT_EQ(host.LastMessage().Text,
              "Poisson's ratio: Please enter a number of at least 0.25. The value is too small.");
    EXPECT_FALSE(Check(form, "3", -1e38, -2));
    EXPECT_EQ(host.LastMessage().Text, "Poisson's ratio: Please enter a number of at most -2. The value is too large.");
    EXPECT_FALSE(Check(form, "x", -1e38, 1e38));
    EXPECT_EQ(host.LastMessage().Text, "Poisson's ratio: Please enter a number. \"x\" is no number.");
}

TEST_F(Services, AWholeNumberIsAskedForByKindOne) {
    NumberForm form;
    EXPECT_TRUE(Check(form, "3", 1, 5, 1));
    EXPECT_FALSE(Check(form, "3.5", 1, 5, 1));
    EXPECT_EQ(host.LastMessage().Text, "Poisson's ratio: Please enter a number from 1 to 5. The number must be whole.");
}

TEST_F(Services, TheDecimalSignOfTheUserIsReadAndShown) {
    SharedServices().DecimalSign = ',';
    NumberForm form;
    EXPECT_TRUE(Check(form, "0,3", 0, 0.5));
    EXPECT_EQ(SharedServices().GetNumber(form.txt), 0.3);
    EXPECT_TRUE(Check(form, "0.3", 0, 0.5));
    EXPECT_FALSE(Check(form, "0.6", 0, 0.5));
    EXPECT_THAT(host.LastMessage().Text, HasSubstr("from 0 to 0,5."));
}

TEST_F(Services, ArabicDigitsAndTypesetSignsAreNumbers) {
    NumberForm form;
    form.txt.Text = "\u2212\u0661\u0662\u066B\u0665";  // minus, 1, 2, decimal sign, 5
    EXPECT_EQ(SharedServices().GetNumber(form.txt), -12.5);
    form.txt.Text = "\u200F 7\u00A0";
    EXPECT_EQ(SharedServices().GetNumber(form.txt), 7);
}

TEST_F(Services, ABoxWithoutANumberIsAnInvalidArgument) {
    NumberForm form;
    form.txt.Text = "x";
    EXPECT_EQ(KindOf([&] { SharedServices().GetNumber(form.txt); }), FailureKind::InvalidArgument);
}

// --- forms, help, questions, progress ------------------------------------------------------------------------------

TEST_F(Services, AFormTakesTheReadingDirectionOfTheLanguageItIsLoadedIn) {
    NumberForm form;
    LanguageTexts().SetCurrent(Language::Arabic);
    SharedServices().PrepareForm(form);
    EXPECT_TRUE(form.RightToLeft);
    LanguageTexts().SetCurrent(Language::German);
    EXPECT_TRUE(form.RightToLeft);
    SharedServices().PrepareForm(form);
    EXPECT_FALSE(form.RightToLeft);
}

TEST_F(Services, TheHelpTextThatWasSetIsShown) {
    SharedServices().SetHelpText("line 1\rline 2");
    EXPECT_EQ(SharedServices().GetHelpText(), "line 1\rline 2");
    SharedServices().ShowHelpText("Units");
    SharedServices().ShowHelpTopic("7_7");
    EXPECT_EQ(host.HelpTexts[0].Title, "Units");
    EXPECT_EQ(host.HelpTexts[0].Text, "line 1\rline 2");
    EXPECT_THAT(host.HelpTopics, ElementsAre("7_7"));
}

TEST_F(Services, TheProgramEndsOnlyWhenTheUserSaysYes) {
    host.AnswerYesNo(false);
    EXPECT_FALSE(SharedServices().ConfirmQuit());
    host.AnswerYesNo(true);
    EXPECT_TRUE(SharedServices().ConfirmQuit());
}

TEST_F(Services, ProgressIsToldAtTheEndsAndOnlyNowAndThenBetween) {
    SharedServices().ReportProgress(0);
    for (int i = 1; i < 10000; ++i) SharedServices().ReportProgress(i / 10000.0);
    SharedServices().ReportProgress(1);
    ASSERT_GE(host.ProgressReports.size(), 2u);
    EXPECT_LT(host.ProgressReports.size(), 1000u);
    EXPECT_EQ(host.ProgressReports.front(), 0);
    EXPECT_EQ(host.ProgressReports.back(), 1);
}

TEST_F(Services, ACancelledRunEndsInItsOwnFailure) {
    host.CancelAtProgress(2);
    SharedServices().ReportProgress(0);
    EXPECT_EQ(KindOf([] { SharedServices().ReportProgress(1); }), FailureKind::Cancelled);
    SharedServices().ReportProgress(0);  // the next run starts afresh
}

TEST_F(Services, NoticesAndPointerReachTheHost) {
    SharedServices().ShowFileStatus(FileStatus::Writing);
    SharedServices().ClearFileStatus();
    SharedServices().SetPointer(PointerShape::Hourglass);
    EXPECT_THAT(host.FileStatuses, ElementsAre(FileStatus::Writing, FileStatus::None));
    EXPECT_EQ(host.Pointer(), PointerShape::Hourglass);
}

TEST_F(Services, TheLastCallOfTheProcessDropsAnOpenFile) {
    SharedServices().SetProgramNumber(6);
    OpenNumberedFile(1, folder / "A.SSD", FileMode::Output);
    SharedServices().CloseServices();
    EXPECT_FALSE(IsNumberedFileOpen(1));
    EXPECT_THAT(folder.Names(), ElementsAre());
}

TEST_F(Services, TheTextNumberIsHeld) {
    SharedServices().SetCurrentTextId(140185_text);
    EXPECT_EQ(SharedServices().GetCurrentTextId(), 140185_text);
}

}  // namespace
}  // namespace lithmark::tests
