#include "viewer/LookHistory.h"

#include <gtest/gtest.h>

#include <random>

using namespace QmChart6;

namespace {

LookMoment Titled(const char* title, bool modified = true) {
    LookMoment moment;
    moment.look.chart.Title.Text = QLatin1String(title);
    moment.modified = modified;
    return moment;
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
    EXPECT_EQ(history.Undo()->look.chart.Title.Text, "b");
    EXPECT_EQ(history.Undo()->look.chart.Title.Text, "a");
    EXPECT_EQ(history.Undo(), nullptr);
    EXPECT_EQ(history.Redo()->look.chart.Title.Text, "b");
    EXPECT_EQ(history.Redo()->look.chart.Title.Text, "c");
    EXPECT_EQ(history.Redo(), nullptr);
}

TEST(LookHistory, ANewStepForgetsWhatWasTakenBack) {
    LookHistory history;
    history.Add(Titled("a"), Titled("b"));
    history.Undo();
    history.Add(Titled("a"), Titled("c"));
    EXPECT_EQ(history.Redo(), nullptr);
    EXPECT_EQ(history.Undo()->look.chart.Title.Text, "a");
    EXPECT_EQ(history.Undo(), nullptr);
}

TEST(LookHistory, WhatChangedNothingIsNoStepAndKeepsWhatWasTakenBack) {
    LookHistory history;
    history.Add(Titled("a"), Titled("b"));
    history.Undo();
    LookMoment elsewhere = Titled("a", false);
    elsewhere.look.chart.Row = 3;
    history.Add(Titled("a"), elsewhere);
    EXPECT_EQ(history.StepsBack(), 0u);
    EXPECT_EQ(history.StepsForward(), 1u);
}

TEST(LookHistory, EveryMemberOfAStateMakesAStep) {
    const std::vector<std::function<void(LookState&)>> changes{
        [](LookState& look) { look.lines = 0; },
        [](LookState& look) { look.markers = 1; },
        [](LookState& look) { look.stacked = 1; },
        [](LookState& look) { look.fullStacked = 1; },
        [](LookState& look) { look.controlBar = false; },
        [](LookState& look) { look.chart.ShowLegend = true; },
    };
    LookHistory history;
    for (const auto& change : changes) {
        LookMoment after;
        change(after.look);
        history.Add({}, after);
    }
    EXPECT_EQ(history.StepsBack(), changes.size());
}

TEST(LookHistory, OlderStepsThanTheMostAreForgotten) {
    LookHistory history;
    for (std::size_t step = 0; step < LookHistory::MostSteps + 20; ++step) {
        LookMoment before;
        before.look.chart.Title.Text = QString::number(step);
        LookMoment after;
        after.look.chart.Title.Text = QString::number(step + 1);
        history.Add(before, after);
    }
    EXPECT_EQ(history.StepsBack(), LookHistory::MostSteps);
    QString oldest;
    while (const LookMoment* moment = history.Undo()) oldest = moment->look.chart.Title.Text;
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
    history.LookWasKept(Titled("b").look);
    history.Undo();
    EXPECT_TRUE(history.Undo()->modified);
    EXPECT_FALSE(history.Redo()->modified);
    EXPECT_TRUE(history.Redo()->modified);
}

TEST(LookHistory, RandomWalksEndWhereTheyBegan) {
    std::mt19937 random(20261121);
    for (int walk = 0; walk < 50; ++walk) {
        LookHistory history;
        LookMoment now = Titled("first");
        const LookMoment first = now;
        for (int step = 0; step < 60; ++step) {
            const LookMoment before = now;
            switch (random() % 5) {
            case 0:
                if (const LookMoment* moment = history.Undo()) now = *moment;
                break;
            case 1:
                if (const LookMoment* moment = history.Redo()) now = *moment;
                break;
            default:
                now.look.chart.Title.Text = QString::number(random() % 7);
                now.look.stacked = static_cast<std::int16_t>(random() % 2);
                history.Add(before, now);
            }
        }
        LookMoment last = now;
        while (const LookMoment* moment = history.Redo()) last = *moment;
        LookMoment back = last;
        while (const LookMoment* moment = history.Undo()) back = *moment;
        EXPECT_TRUE(LookAlike(back.look, first.look)) << walk;
        LookMoment again = back;
        while (const LookMoment* moment = history.Redo()) again = *moment;
        EXPECT_TRUE(LookAlike(again.look, last.look)) << walk;
    }
}
