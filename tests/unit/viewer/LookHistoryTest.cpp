#include "viewer/LookHistory.h"

#include <gtest/gtest.h>

#include <random>

using namespace QmChart6;

namespace {

LookState Titled(const char* title, bool modified = true) {
    LookState state;
    state.Chart.Title.Text = QLatin1String(title);
    state.Modified = modified;
    return state;
}

} // namespace

TEST(LookHistory, StartsWithNothingToTakeBackOrDoAgain) {
    LookHistory history;
    EXPECT_EQ(history.Undo(), nullptr);
    EXPECT_EQ(history.Redo(), nullptr);
}

TEST(LookHistory, GoesBackAndForth) {
    LookHistory history;
    history.Add(Titled("a"), Titled("b"));
    history.Add(Titled("b"), Titled("c"));
    EXPECT_EQ(history.Undo()->Chart.Title.Text, "b");
    EXPECT_EQ(history.Undo()->Chart.Title.Text, "a");
    EXPECT_EQ(history.Undo(), nullptr);
    EXPECT_EQ(history.Redo()->Chart.Title.Text, "b");
    EXPECT_EQ(history.Redo()->Chart.Title.Text, "c");
    EXPECT_EQ(history.Redo(), nullptr);
}

TEST(LookHistory, ANewStepForgetsWhatWasTakenBack) {
    LookHistory history;
    history.Add(Titled("a"), Titled("b"));
    history.Undo();
    history.Add(Titled("a"), Titled("c"));
    EXPECT_EQ(history.Redo(), nullptr);
    EXPECT_EQ(history.Undo()->Chart.Title.Text, "a");
    EXPECT_EQ(history.Undo(), nullptr);
}

TEST(LookHistory, WhatChangedNothingIsNoStepAndKeepsWhatWasTakenBack) {
    LookHistory history;
    history.Add(Titled("a"), Titled("b"));
    history.Undo();
    LookState elsewhere = Titled("a", false);
    elsewhere.Chart.Row = 3;
    history.Add(Titled("a"), elsewhere);
    EXPECT_EQ(history.StepsBack(), 0u);
    EXPECT_EQ(history.StepsForward(), 1u);
}

TEST(LookHistory, EveryMemberOfAStateMakesAStep) {
    const std::vector<std::function<void(LookState&)>> changes{
        [](LookState& state) { state.Lines = 1; },
        [](LookState& state) { state.Markers = 1; },
        [](LookState& state) { state.Stacked = 1; },
        [](LookState& state) { state.FullStacked = 1; },
        [](LookState& state) { state.ControlBar = false; },
        [](LookState& state) { state.Chart.ShowLegend = true; },
    };
    LookHistory history;
    for (const auto& change : changes) {
        LookState after;
        change(after);
        history.Add({}, after);
    }
    EXPECT_EQ(history.StepsBack(), changes.size());
}

TEST(LookHistory, OlderStepsThanTheMostAreForgotten) {
    LookHistory history;
    for (std::size_t step = 0; step < LookHistory::MostSteps + 20; ++step) {
        LookState before;
        before.Chart.Title.Text = QString::number(step);
        LookState after;
        after.Chart.Title.Text = QString::number(step + 1);
        history.Add(before, after);
    }
    EXPECT_EQ(history.StepsBack(), LookHistory::MostSteps);
    QString oldest;
    while (const LookState* state = history.Undo()) oldest = state->Chart.Title.Text;
    EXPECT_EQ(oldest, "20");
}

TEST(LookHistory, ClearingLeavesNothing) {
    LookHistory history;
    history.Add(Titled("a"), Titled("b"));
    history.Add(Titled("b"), Titled("c"));
    history.Undo();
    history.Clear();
    EXPECT_EQ(history.Undo(), nullptr);
    EXPECT_EQ(history.Redo(), nullptr);
}

TEST(LookHistory, OnceALookIsKeptEveryOtherIsModified) {
    LookHistory history;
    history.Add(Titled("a", false), Titled("b"));
    history.Add(Titled("b"), Titled("c"));
    history.LookWasKept(Titled("b"));
    history.Undo();
    EXPECT_TRUE(history.Undo()->Modified);
    EXPECT_FALSE(history.Redo()->Modified);
    EXPECT_TRUE(history.Redo()->Modified);
}

TEST(LookHistory, RandomWalksEndWhereTheyBegan) {
    std::mt19937 random(20261121);
    for (int walk = 0; walk < 50; ++walk) {
        LookHistory history;
        LookState now = Titled("first");
        const LookState first = now;
        for (int step = 0; step < 60; ++step) {
            const LookState before = now;
            switch (random() % 5) {
            case 0:
                if (const LookState* state = history.Undo()) now = *state;
                break;
            case 1:
                if (const LookState* state = history.Redo()) now = *state;
                break;
            default:
                now.Chart.Title.Text = QString::number(random() % 7);
                now.Stacked = static_cast<std::int16_t>(random() % 2);
                history.Add(before, now);
            }
        }
        LookState last = now;
        while (const LookState* state = history.Redo()) last = *state;
        LookState back = last;
        while (const LookState* state = history.Undo()) back = *state;
        EXPECT_TRUE(back.LooksLike(first)) << walk;
        LookState again = back;
        while (const LookState* state = history.Redo()) again = *state;
        EXPECT_TRUE(again.LooksLike(last)) << walk;
    }
}
