// Drafts on the disk: what was kept comes back, and nothing else is taken for it.

#include <string>

#include "services/storage/DraftStore.h"
#include "support/Files.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class DraftStoreTest : public ::testing::Test {
  protected:
    std::string Dir() const { return folder / "state/drafts/"; }
    StoredDraft Draft() const {
        return {"/data/Crane",  "frmstress", "1. [m]", "today", {{"txtNue", "0,3\"\\\n"}, {"txtEs", "بلا"}},
                {{"Es", "1e4"}}};
    }

    TestFolder folder;
};

TEST_F(DraftStoreTest, WhatWasKeptComesBack) {
    WriteDraft(Dir(), Draft());
    EXPECT_EQ(ReadDraft(Dir(), "/data/Crane", "frmstress"), Draft());
    StoredDraft newer = Draft();
    newer.Texts.pop_back();
    WriteDraft(Dir(), newer);
    EXPECT_EQ(ReadDraft(Dir(), "/data/Crane", "frmstress"), newer);
}

TEST_F(DraftStoreTest, AnotherProjectOrDialogHasItsOwn) {
    WriteDraft(Dir(), Draft());
    EXPECT_FALSE(ReadDraft(Dir(), "/data/Crane", "frmConsolidation"));
    EXPECT_FALSE(ReadDraft(Dir(), "/data/Silo", "frmstress"));
    StoredDraft other = Draft();
    other.Form = "frmConsolidation";
    WriteDraft(Dir(), other);
    RemoveDraft(Dir(), "/data/Crane", "frmstress");
    EXPECT_FALSE(ReadDraft(Dir(), "/data/Crane", "frmstress"));
    EXPECT_EQ(ReadDraft(Dir(), "/data/Crane", "frmConsolidation"), other);
}

TEST_F(DraftStoreTest, ADamagedFileIsNoDraft) {
    WriteDraft(Dir(), Draft());
    std::string file;
    for (const auto& entry : std::filesystem::directory_iterator(Dir())) file = entry.path().string();
    const std::string good = ReadBytes(file);
    for (const std::string& bad : {std::string(), good.substr(0, good.size() / 2), std::string(100000, '['),
                                   std::string("{\"project\": 3}"), std::string("\xFF\x00", 2)}) {
        WriteBytes(file, bad);
        EXPECT_FALSE(ReadDraft(Dir(), "/data/Crane", "frmstress")) << bad.substr(0, 40);
    }
    WriteBytes(file, good);
    EXPECT_TRUE(ReadDraft(Dir(), "/data/Crane", "frmstress"));
}

TEST_F(DraftStoreTest, AFullDiskLeavesTheFormerDraftAndNothingElse) {
    LITHMARK_NEEDS(CopyOfAProcess);
    WriteDraft(Dir(), Draft());
    StoredDraft larger = Draft();
    larger.Texts.front().second = std::string(20000, 'x');
    EXPECT_TRUE(
        OnAFullDisk(8192, [&] { return KindOf([&] { WriteDraft(Dir(), larger); }) == FailureKind::WriteError; }));
    EXPECT_EQ(ReadDraft(Dir(), "/data/Crane", "frmstress"), Draft());
    EXPECT_THAT(std::vector<std::filesystem::path>(std::filesystem::directory_iterator(Dir()), {}), SizeIs(1));
}

TEST_F(DraftStoreTest, TheFolderIsTheUsersOwn) {
    LITHMARK_NEEDS(FilePermissions);
    WriteDraft(Dir(), Draft());
    EXPECT_EQ(std::filesystem::status(Dir()).permissions(), std::filesystem::perms::owner_all);
}

}  // namespace
}  // namespace lithmark::tests
