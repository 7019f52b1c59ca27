// The answer beside the fields: what it works out when, and how it stands, without a screen, a process or real time.
#include <filesystem>

#include "FormTest.h"
#include "core/SessionFields.h"
#include "support/Matchers.h"
#include "ui/answer/LiveAnswer.h"
#include "ui/frmRigidDisplacement.h"
#include "ui/frmstress.h"

namespace lithmark::tests {
namespace {

// Work that ends when the test says so.
class FakeWorker : public AnswerWorker {
  public:
    void Start(const SessionRecord& draft, std::vector<CommandWords> commands, Done done) override {
        Drafts.push_back(draft);
        Commands = std::move(commands);
        done_ = std::move(done);
    }
    void Cancel() override { done_ = nullptr; }
    bool Working() const { return done_ != nullptr; }
    Done Taken() { return std::exchange(done_, nullptr); }
    void End(const CommandOutput& report) { Taken()({report, {}, {}}); }
    void EndWith(double sigmaZ) { End({.Numbers = {{"Sigma_z", sigmaZ}}}); }

    std::vector<SessionRecord> Drafts;
    std::vector<CommandWords> Commands;

  private:
    Done done_;
};

// A dialog, its answer, and a clock that stands until the test moves it.
class LiveAnswerTest : public FormTest {
  protected:
    template <typename F>
    void On(int problem, std::function<void(F&)> script) {
        Session.ProblemType = problem;
        OnShown<F>([&](F& form) {
            LiveAnswer live(form, worker, [this] { return now; });
            answer = &live;
            script(form);
            answer = nullptr;
        });
    }
    void TypeInto(Form& form, const std::string& box, const std::string& text) {
        Type(form, box, text);
        answer->Typed(*form.Find(box));
    }
    // Time passes, and who shows the answer does what is due.
    void Pass(LiveAnswer::Milliseconds milliseconds) {
        const auto end = now + milliseconds;
        for (auto due = answer->NextDue(); due && now + *due <= end; due = answer->NextDue()) {
            now += *due;
            answer->Due();
            ASSERT_FALSE(due == 0 && answer->NextDue() == 0) << "what is due stays due";
        }
        now = end;
    }
    void ShowFirst(double sigmaZ = 63.456) {
        answer->Chosen();
        Pass(0);
        if (worker.Working()) worker.EndWith(sigmaZ);
    }
    std::string ShownText(const std::string& symbol) const {
        const AnswerValue* value = answer->Shown() ? answer->Shown()->Find(symbol) : nullptr;
        return value ? value->Text : "";
    }

    FakeWorker worker;
    LiveAnswer* answer = nullptr;
    LiveAnswer::Milliseconds now = 5000;
};

TEST_F(LiveAnswerTest, WorksOutTheFirstLookAtOnce) {
    On<frmstress>(1, [&](frmstress& form) {
        EXPECT_EQ(answer->State(), AnswerState::None);
        answer->Chosen();
        Pass(0);
        ASSERT_THAT(worker.Drafts, SizeIs(1));
        EXPECT_EQ(worker.Drafts[0].z, form.Draft().Record.z);
        EXPECT_EQ(answer->State(), AnswerState::None);
        worker.EndWith(63.456);
        EXPECT_EQ(answer->State(), AnswerState::Now);
        EXPECT_EQ(ShownText("Sigma_z"), "63.5");
        EXPECT_FALSE(answer->NextDue());
    });
}

TEST_F(LiveAnswerTest, WaitsForTheLastKeyAndNotForClicks) {
    On<frmstress>(1, [&](frmstress& form) {
        ShowFirst();
        TypeInto(form, "txt_z", "3");
        Pass(100);
        TypeInto(form, "txt_z", "3.5");
        Pass(149);
        EXPECT_THAT(worker.Drafts, SizeIs(1));
        Pass(1);
        ASSERT_THAT(worker.Drafts, SizeIs(2));
        EXPECT_EQ(worker.Drafts[1].z, 3.5);
        worker.EndWith(1);
        Click(form, "optLoadType(2)");
        answer->Chosen();
        Pass(0);
        EXPECT_THAT(worker.Drafts, SizeIs(3));
    });
}

TEST_F(LiveAnswerTest, ValuesStandForAWhileAndTurnStale) {
    On<frmstress>(1, [&](frmstress& form) {
        ShowFirst();
        TypeInto(form, "txt_z", "3");
        Pass(299);
        EXPECT_EQ(answer->State(), AnswerState::Now);
        Pass(1);
        EXPECT_EQ(answer->State(), AnswerState::Stale);
        EXPECT_EQ(ShownText("Sigma_z"), "63.5");
        worker.EndWith(40);
        EXPECT_EQ(answer->State(), AnswerState::Now);
        EXPECT_EQ(ShownText("Sigma_z"), "40.0");
    });
}

TEST_F(LiveAnswerTest, KeysWithoutAPauseDoNotKeepOldValuesFresh) {
    On<frmstress>(1, [&](frmstress& form) {
        ShowFirst();
        for (const char* text : {"3", "3.", "3.1", "3.12"}) {
            TypeInto(form, "txt_z", text);
            Pass(100);
        }
        EXPECT_EQ(answer->State(), AnswerState::Stale);
        EXPECT_THAT(worker.Drafts, SizeIs(1));
    });
}

TEST_F(LiveAnswerTest, AQuickAnswerIsNeverStale) {
    On<frmstress>(1, [&](frmstress& form) {
        ShowFirst();
        std::vector<AnswerState> states;
        answer->OnChange = [&] { states.push_back(answer->State()); };
        TypeInto(form, "txt_z", "3");
        Pass(200);
        worker.EndWith(40);
        Pass(5000);
        EXPECT_THAT(states, ::testing::Each(AnswerState::Now));
    });
}

TEST_F(LiveAnswerTest, OnlyTheNewestInputIsAnswered) {
    On<frmstress>(1, [&](frmstress& form) {
        ShowFirst();
        TypeInto(form, "txt_z", "3");
        Pass(150);
        const AnswerWorker::Done late = worker.Taken();
        TypeInto(form, "txt_z", "4");
        late({{.Numbers = {{"Sigma_z", 1}}}, {}});
        EXPECT_EQ(ShownText("Sigma_z"), "63.5");
        Pass(150);
        ASSERT_THAT(worker.Drafts, SizeIs(3));
        late({{.Numbers = {{"Sigma_z", 1}}}, {}});
        EXPECT_EQ(ShownText("Sigma_z"), "63.5");
        worker.EndWith(40);
        EXPECT_EQ(ShownText("Sigma_z"), "40.0");
    });
}

TEST_F(LiveAnswerTest, InputTakenBackNeedsNoWork) {
    On<frmstress>(1, [&](frmstress& form) {
        ShowFirst();
        const std::string before = form.txt_z.Text;
        TypeInto(form, "txt_z", "3");
        Pass(150);
        TypeInto(form, "txt_z", before);
        Pass(1000);
        EXPECT_EQ(answer->State(), AnswerState::Now);
        EXPECT_FALSE(worker.Working());
        EXPECT_THAT(worker.Drafts, SizeIs(2));
    });
}

TEST_F(LiveAnswerTest, ABoxThatIsWrongStopsItWithItsReason) {
    On<frmstress>(1, [&](frmstress& form) {
        ShowFirst();
        TypeInto(form, "txt_Nue", "0.6");
        Pass(150);
        EXPECT_EQ(answer->State(), AnswerState::Stopped);
        EXPECT_EQ(answer->Box(), &form.txt_Nue);
        EXPECT_THAT(answer->Reason(), HasSubstr("0.5"));
        EXPECT_EQ(ShownText("Sigma_z"), "63.5");
        TypeInto(form, "txt_Nue", "0.4");
        Pass(150);
        EXPECT_EQ(answer->State(), AnswerState::Stale);
        EXPECT_EQ(answer->Box(), nullptr);
        worker.EndWith(40);
        EXPECT_EQ(answer->State(), AnswerState::Now);
    });
}

TEST_F(LiveAnswerTest, ANumberThatIsNotFinishedIsNoErrorYet) {
    On<frmstress>(1, [&](frmstress& form) {
        for (const char* text : {"", "-", ".", "1e-"}) {
            Type(form, "txt_z", "2");
            ShowFirst();
            TypeInto(form, "txt_z", text);
            Pass(999);
            EXPECT_EQ(answer->State(), AnswerState::Stale) << text;
            Pass(1);
            EXPECT_EQ(answer->State(), AnswerState::Stopped) << text;
        }
        Type(form, "txt_z", "2");
        answer->Chosen();
        Pass(0);
        TypeInto(form, "txt_z", "");
        Pass(200);
        answer->Left();
        Pass(0);
        EXPECT_EQ(answer->State(), AnswerState::Stopped);
    });
}

TEST_F(LiveAnswerTest, AnAbortedRunTellsItsMessage) {
    On<frmstress>(1, [&](frmstress& form) {
        ShowFirst();
        TypeInto(form, "txt_z", "3");
        Pass(150);
        worker.End({.Status = 3, .Trouble = "P1.PO3: Division", .Aborted = true, .Messages = {"Division by zero."}});
        EXPECT_EQ(answer->State(), AnswerState::Failed);
        EXPECT_EQ(answer->Reason(), "Division by zero.");
        TypeInto(form, "txt_z", "4");
        Pass(150);
        worker.End({.Status = -1});
        EXPECT_EQ(answer->State(), AnswerState::Failed);
        EXPECT_THAT(answer->Reason(), HasSubstr("lithmark-cli"));
    });
}

TEST_F(LiveAnswerTest, TellsAfterASecondThatItIsAtWork) {
    On<frmstress>(1, [&](frmstress&) {
        answer->Chosen();
        Pass(999);
        EXPECT_FALSE(answer->InProgress());
        int changes = 0;
        answer->OnChange = [&] { ++changes; };
        Pass(1);
        EXPECT_TRUE(answer->InProgress());
        EXPECT_EQ(changes, 1);
        EXPECT_FALSE(answer->NextDue());
        worker.EndWith(1);
        EXPECT_FALSE(answer->InProgress());
    });
}

TEST_F(LiveAnswerTest, ALongRaftWaitsToBeAsked) {
    On<frmRigidDisplacement>(9, [&](frmRigidDisplacement& form) {
        Click(form, "optAnalysisType(1)");
        Click(form, "optLoadType(2)");
        Session.PrefND = 180;
        answer->Chosen();
        Pass(0);
        EXPECT_EQ(answer->State(), AnswerState::OnRequest);
        EXPECT_EQ(answer->Size().Nodes, 32401);
        EXPECT_THAT(worker.Drafts, IsEmpty());
        bool spoken = false;
        answer->OnSpeak = [&] { spoken = true; };
        answer->Ask();
        ASSERT_THAT(worker.Drafts, SizeIs(1));
        EXPECT_FALSE(spoken);
        worker.End({.Lists = {{"NodePressure", {-5, 100}}}});
        EXPECT_TRUE(spoken);
        EXPECT_EQ(answer->State(), AnswerState::Now);
        EXPECT_EQ(ShownText("min_q"), "-5.0");
        TypeInto(form, "txt_A", "7");
        Pass(150);
        EXPECT_EQ(answer->State(), AnswerState::OnRequest);
    });
}

TEST_F(LiveAnswerTest, ARectangleIsQuickWhateverItsMesh) {
    On<frmRigidDisplacement>(9, [&](frmRigidDisplacement& form) {
        Click(form, "optAnalysisType(1)");
        Click(form, "optLoadType(1)");
        Type(form, "txt_A", "40");
        Type(form, "txt_B", "40");
        answer->Chosen();
        Pass(0);
        EXPECT_EQ(answer->Size().Nodes, 81 * 81);
        EXPECT_THAT(worker.Drafts, SizeIs(1));
    });
}

TEST_F(LiveAnswerTest, SpeaksOnlyWhenAsked) {
    On<frmstress>(1, [&](frmstress& form) {
        int spoken = 0;
        answer->OnSpeak = [&] { ++spoken; };
        ShowFirst();
        TypeInto(form, "txt_z", "3");
        Pass(150);
        worker.EndWith(40);
        EXPECT_EQ(spoken, 0);
        answer->Ask();
        EXPECT_EQ(spoken, 1);
    });
}

TEST_F(LiveAnswerTest, AKeptAnswerStaysToCompareWith) {
    On<frmstress>(1, [&](frmstress& form) {
        answer->Keep(true);
        EXPECT_EQ(answer->Kept(), nullptr);
        ShowFirst(61);
        answer->Keep(true);
        TypeInto(form, "txt_z", "3");
        Pass(150);
        worker.EndWith(63.5);
        ASSERT_NE(answer->Kept(), nullptr);
        const AnswerValue &value = *answer->Shown()->Find("Sigma_z"), &kept = *answer->Kept()->Find("Sigma_z");
        EXPECT_EQ(kept.Text, "61.0");
        EXPECT_EQ(DifferenceText(value, kept), "+4.1 %");
        answer->Keep(false);
        EXPECT_EQ(answer->Kept(), nullptr);
    });
}

TEST_F(LiveAnswerTest, RestsWhileNobodyLooks) {
    On<frmstress>(1, [&](frmstress& form) {
        ShowFirst();
        TypeInto(form, "txt_z", "3");
        answer->Rest();
        EXPECT_FALSE(answer->NextDue());
        EXPECT_EQ(answer->State(), AnswerState::Stale);
    });
}

// Every field of the record by its text, what the store step sets beside them, and the report.
std::string WholeRecord() {
    std::string text;
    for (const SessionField& field : SessionFields()) text += SessionFieldText(field.Ref) + "\n";
    return text + Session.ResultText + Session.WorkDir + Session.WorkName + (Session.DataValid ? "valid" : "") +
           (Session.FileSaved ? "saved" : "") + (Session.CalcAborted ? "aborted" : "") +
           SessionFieldText(FieldRef(&Session.A0));
}

TEST_F(LiveAnswerTest, LookingChangesNothingInAnyDialog) {
    OnEachProblem([&](ProblemForm& dialog) {
        LiveAnswer live(dialog, worker, [this] { return now; });
        answer = &live;
        const std::string record = WholeRecord();
        const std::vector<std::string> files = DataFiles();
        const std::string box = dialog.Find("txt_T") ? "txt_T" : dialog.Find("txt_Pt") ? "txt_Pt" : "txt_A";
        ShowFirst();
        for (const char* text : {"7.5", "ab", "", "8"}) {
            TypeInto(dialog, box, text);
            Pass(2000);
            if (worker.Working()) worker.End({});
        }
        answer->Keep(true);
        EXPECT_EQ(WholeRecord(), record);
        EXPECT_EQ(DataFiles(), files);
        answer = nullptr;
    });
    EXPECT_GE(worker.Drafts.size(), 20u);
}

}  // namespace
}  // namespace lithmark::tests
