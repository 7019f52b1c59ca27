// Texts from files on their way to a reader, and failures of libraries on theirs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "base/Failure.h"
#include "base/Utf8.h"

namespace lithmark::tests {
namespace {

TEST(PrintableText, KeepsEveryCharacterThatADocumentCanHold) {
    for (const char* text : {"Größe 5 m\tx\r\n", "مشروع ١٢", "\U0001F3D7 \uFFFD \uFDCF \uE000", "a\u202Eb"})
        EXPECT_EQ(PrintableText(text), text);
}

TEST(PrintableText, ReplacesControlsStrayBytesAndWhatIsNoCharacter) {
    EXPECT_EQ(PrintableText(std::string("a\0b", 3)), "a\uFFFDb");
    EXPECT_EQ(PrintableText("\x1B[31mred\x07\x7F"), "\uFFFD[31mred\uFFFD\uFFFD");
    EXPECT_EQ(PrintableText("\u009B\u0085"), "\uFFFD\uFFFD");  // the second half of the controls
    EXPECT_EQ(PrintableText("\uFFFE\uFFFF\uFDD0\U0010FFFE"), "\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(PrintableText("a\xFFz\xC3"), "a\uFFFDz\uFFFD");
}

TEST(ExcerptOfAText, IsOneShortPrintableLine) {
    EXPECT_EQ(Excerpt("a word"), "a word");
    EXPECT_EQ(Excerpt("two\r\nlines\t"), "two  lines ");
    EXPECT_EQ(Excerpt(std::string(40, 'x')), std::string(40, 'x'));
    EXPECT_EQ(CharacterCount(Excerpt(std::string(100000, 'x') + "\x1B")), 43u);
}

TEST(ExcerptOfAPath, HasItsBeginAndItsName) {
    const std::string path = "/projects/a b/Gründung.PO3";
    EXPECT_EQ(PathExcerpt(path), path);
    EXPECT_EQ(PathExcerpt(std::string(300, 'x')), std::string(300, 'x'));
    const std::string endless = "/begin" + std::string(100000, 'x') + "/Gründung.PO3";
    const std::string shown = PathExcerpt(endless);
    EXPECT_EQ(CharacterCount(shown), 303u);
    EXPECT_THAT(shown, testing::StartsWith("/beginxx"));
    EXPECT_THAT(shown, testing::EndsWith("xx/Gründung.PO3"));
}

// No word of a library reaches a user: they are English in every language.
TEST(FailureOfALibrary, BecomesOneOfThePrograms) {
    const auto kind = [](const std::exception& error) { return FailureFrom(error).Kind(); };
    EXPECT_EQ(kind(std::bad_alloc()), FailureKind::OutOfMemory);
    EXPECT_EQ(kind(std::length_error("basic_string::append")), FailureKind::OutOfMemory);
    EXPECT_EQ(kind(Failure(FailureKind::Cancelled)), FailureKind::Cancelled);
    EXPECT_EQ(kind(std::runtime_error("bad")), FailureKind::Other);
    EXPECT_EQ(FailureFrom(std::runtime_error("bad")).Detail(), "");
    const std::filesystem::filesystem_error file("status", "/no/such",
                                                 std::make_error_code(std::errc::permission_denied));
    EXPECT_EQ(kind(file), FailureKind::PermissionDenied);
    EXPECT_EQ(FailureFrom(file).File(), "/no/such");
    EXPECT_EQ(FailureFrom(file).Detail(), "");
    const std::filesystem::filesystem_error odd("status", "/odd", std::make_error_code(std::errc::io_error));
    EXPECT_EQ(FailureFrom(odd).Detail(), "EIO");
}

}  // namespace
}  // namespace lithmark::tests
