#include "dialogs/Mnemonics.h"

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

QStringList Marked(const QStringList& texts) {
    return WithMnemonics({.always = texts, .pages = {}}).always;
}

} // namespace

TEST(WithMnemonics, TakesTheFirstLetterWhereNobodyElseHasIt) {
    EXPECT_EQ(Marked({"Font...", "OK"}), QStringList({"&Font...", "&OK"}));
}

TEST(WithMnemonics, PrefersTheBeginningsOfWords) {
    EXPECT_EQ(Marked({"Show Legend", "Show Markers"}), QStringList({"&Show Legend", "Show &Markers"}));
}

TEST(WithMnemonics, MakesAnotherCaptionMoveWhereOneHasOnlyOneLetter) {
    EXPECT_EQ(Marked({"AB", "A"}), QStringList({"A&B", "&A"}));
}

TEST(WithMnemonics, MakesTheCommonCaptionsLeaveThePagesTheirLetters) {
    const Captions marked = WithMnemonics({.always = {"XA"}, .pages = {{"X"}, {"XY"}}});
    EXPECT_EQ(marked, (Captions{.always = {"X&A"}, .pages = {{"&X"}, {"&XY"}}}));
}

TEST(WithMnemonics, LeavesTheOneWithoutALetterOfItsOwnWithoutAKey) {
    EXPECT_EQ(Marked({"A", "A"}), QStringList({"&A", "A"}));
}

TEST(WithMnemonics, TakesNoLetterThatAKeyboardMayNotHave) {
    EXPECT_EQ(Marked({"Área"}), QStringList({"Á&rea"}));
}

TEST(WithMnemonics, EscapesAnAmpersandThatATextHas) {
    EXPECT_EQ(Marked({"A & B", "B"}), QStringList({"&A && B", "&B"}));
}
