// SPDX-License-Identifier: GPL-2.0-or-later

// The one owner of long jobs.
#include "work/work.h"

#include "support/qt_printing.h"
#include "support/recording_work_display.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class WorkTest : public testing::Test {
 protected:
  /// Asks for a job that only notes that it ran.
  Answer ask(JobKind kind, const QString& note) {
    return work_.run(kind, [this, note](Job&) { ran_ += note; });
  }

  ProgramState state_;
  RecordingWorkDisplay display_;
  Work work_{state_, display_};
  QStringList ran_;
};

TEST_F(WorkTest, AnIdleProgramStartsEverything) {
  for (int kind = 0; kind < kJobKinds; ++kind) {
    EXPECT_EQ(work_.answerTo(static_cast<JobKind>(kind)), Answer::Starts);
    EXPECT_FALSE(work_.isRunning(static_cast<JobKind>(kind)));
    EXPECT_EQ(work_.refusalOf(static_cast<JobKind>(kind)), QString());
  }
}

TEST_F(WorkTest, AJobRunsAsLongAsItsObjectLives) {
  {
    const std::optional<Job> job = work_.start(JobKind::Update);
    ASSERT_TRUE(job);
    EXPECT_TRUE(work_.isRunning(JobKind::Update));
    EXPECT_FALSE(work_.start(JobKind::Update));
    EXPECT_TRUE(work_.isRunning(JobKind::Update));
  }
  EXPECT_FALSE(work_.isRunning(JobKind::Update));
}

TEST_F(WorkTest, AJobMayEndBeforeItsObject) {
  work_.run(JobKind::Refresh, [this](Job& job) {
    job.show();
    job.end();
    EXPECT_FALSE(state_.RescanRunning);
    EXPECT_FALSE(display_.isShown);
    // What is told of the first one lets events run, and another may be asked for meanwhile.
    EXPECT_EQ(ask(JobKind::Refresh, u"second"_qs), Answer::Starts);
  });
  EXPECT_EQ(ran_, QStringList(u"second"_qs));
}

TEST_F(WorkTest, EveryPairFollowsTheTable) {
  for (int running = 0; running < kJobKinds - 1; ++running) {
    const std::optional<Job> job = work_.start(static_cast<JobKind>(running));
    ASSERT_TRUE(job);
    for (int wanted = 0; wanted < kJobKinds; ++wanted) {
      const Answer answer = answerWhile(static_cast<JobKind>(running), static_cast<JobKind>(wanted));
      EXPECT_EQ(work_.answerTo(static_cast<JobKind>(wanted)), answer) << running << ' ' << wanted;
    }
  }
}

TEST_F(WorkTest, ARefusedJobDoesNotRunAndSaysWhy) {
  work_.run(JobKind::Update, [this](Job&) {
    EXPECT_EQ(ask(JobKind::Refresh, u"rescan"_qs), Answer::Refused);
    EXPECT_EQ(work_.refusalOf(JobKind::Refresh),
              u"A web update is running. The rescan can be started when that has ended."_qs);
  });
  EXPECT_EQ(ran_, QStringList());
  EXPECT_EQ(ask(JobKind::Refresh, u"rescan"_qs), Answer::Starts);
}

TEST_F(WorkTest, AWaitingJobFollowsWhatItWaitedFor) {
  work_.run(JobKind::Refresh, [this](Job&) {
    EXPECT_EQ(ask(JobKind::Refresh, u"second"_qs), Answer::Waits);
    ran_ += u"first"_qs;
  });
  EXPECT_EQ(ran_, QStringList({u"first"_qs, u"second"_qs}));
  EXPECT_FALSE(work_.isRunning(JobKind::Refresh));
}

TEST_F(WorkTest, OfEachKindOneJobWaitsTheOneAskedForLast) {
  work_.run(JobKind::Refresh, [this](Job&) {
    ask(JobKind::Refresh, u"second"_qs);
    ask(JobKind::Packing, u"packing"_qs);
    ask(JobKind::Refresh, u"third"_qs);
  });
  EXPECT_EQ(ran_, QStringList({u"packing"_qs, u"third"_qs}));
}

TEST_F(WorkTest, WhatWaitsForTwoWaitsForBoth) {
  work_.run(JobKind::Refresh, [this](Job&) {
    work_.run(JobKind::Search, [this](Job&) {
      EXPECT_EQ(ask(JobKind::Refresh, u"again"_qs), Answer::Waits);
      ran_ += u"search"_qs;
    });
    ran_ += u"refresh"_qs;
  });
  EXPECT_EQ(ran_, QStringList({u"search"_qs, u"refresh"_qs, u"again"_qs}));
}

TEST_F(WorkTest, TheStrictestOfTheRunningJobsDecides) {
  const std::optional<Job> update = work_.start(JobKind::Update);
  const std::optional<Job> search = work_.start(JobKind::Search);
  EXPECT_EQ(work_.answerTo(JobKind::Refresh), Answer::Refused);
  EXPECT_EQ(work_.refusalOf(JobKind::Refresh),
            u"A web update is running. The rescan can be started when that has ended."_qs);
  EXPECT_EQ(work_.answerTo(JobKind::Search), Answer::Stops);
}

TEST_F(WorkTest, AJobThatWasStartedAloneWakesTheOthersWhenToldOfItsEnd) {
  std::optional<Job> unpacking = work_.start(JobKind::Unpacking);
  ask(JobKind::Packing, u"packing"_qs);
  unpacking.reset();
  EXPECT_EQ(ran_, QStringList());
  work_.wake();
  EXPECT_EQ(ran_, QStringList(u"packing"_qs));
}

TEST_F(WorkTest, NothingStartsWhileTheProgramCloses) {
  work_.run(JobKind::Refresh, [this](Job&) {
    EXPECT_EQ(ask(JobKind::Refresh, u"second"_qs), Answer::Waits);
    state_.QuitPending = true;
    EXPECT_EQ(work_.answerTo(JobKind::Search), Answer::Refused);
    EXPECT_EQ(work_.refusalOf(JobKind::Update), QString());
  });
  EXPECT_EQ(ran_, QStringList());
  EXPECT_FALSE(work_.start(JobKind::Getting));
}

// The display.

TEST_F(WorkTest, TheDisplayStaysAsLongAsItsJobRuns) {
  work_.run(JobKind::Update, [this](Job& job) {
    job.show();
    work_.run(JobKind::Search, [](Job&) {});
    EXPECT_TRUE(display_.isShown);
  });
  EXPECT_FALSE(display_.isShown);
  EXPECT_EQ(display_.log, QStringList({u"progress shown"_qs, u"progress unloaded"_qs}));
}

TEST_F(WorkTest, AJobThatHasShownNothingTakesNothingAway) {
  work_.run(JobKind::Packing, [](Job&) {});
  EXPECT_EQ(display_.log, QStringList());
}

TEST_F(WorkTest, WhatIsLeftStandingStays) {
  work_.run(JobKind::Update, [](Job& job) {
    job.show();
    job.leaveStanding();
  });
  EXPECT_TRUE(display_.isShown);
  EXPECT_EQ(display_.log, QStringList({u"progress shown"_qs, u"progress left"_qs}));
}

TEST_F(WorkTest, AClosingProgramShowsNothing) {
  work_.run(JobKind::Update, [this](Job& job) {
    state_.QuitPending = true;
    job.show();
  });
  EXPECT_EQ(display_.log, QStringList());
}

// The flags.

TEST_F(WorkTest, RescanRunningIsSetExactlyWhileARefreshRuns) {
  work_.run(JobKind::Refresh, [this](Job&) { EXPECT_TRUE(state_.RescanRunning); });
  EXPECT_FALSE(state_.RescanRunning);
  work_.run(JobKind::Update, [this](Job&) { EXPECT_FALSE(state_.RescanRunning); });
}

TEST_F(WorkTest, TheStopRequestIsNeitherSetNorClearedByStartAndEnd) {
  for (int kind = 0; kind < kJobKinds - 1; ++kind) {
    for (const bool before : {false, true}) {
      state_.AbortRequested = before;
      work_.run(static_cast<JobKind>(kind), [](Job& job) { job.show(); });
      EXPECT_EQ(state_.AbortRequested, before);
    }
  }
}

TEST_F(WorkTest, TheStopRequestIsDroppedUnlessTheProgramCloses) {
  work_.run(JobKind::Update, [this](Job& job) {
    job.requestStop();
    EXPECT_TRUE(state_.AbortRequested);
    EXPECT_TRUE(job.isStopRequested());
    job.dropStopRequest();
    EXPECT_FALSE(state_.AbortRequested);
    EXPECT_FALSE(job.isStopRequested());
    state_.AbortRequested = true;
    state_.QuitPending = true;
    job.dropStopRequest();
    EXPECT_TRUE(state_.AbortRequested);
  });
}

TEST_F(WorkTest, ACancelThatASearchHasTakenAwayStillEndsItsJob) {
  work_.run(JobKind::Update, [this](Job& job) {
    display_.cancelled = true;
    EXPECT_FALSE(job.isStopRequested()) << "the display does not belong to this job yet";
    job.show();
    display_.cancelled = true;
    state_.AbortRequested = false;
    EXPECT_TRUE(job.isStopRequested());
    EXPECT_FALSE(job.isAbortRequested());
  });
}

TEST_F(WorkTest, ClosingEndsEveryJob) {
  for (int kind = 0; kind < kJobKinds - 1; ++kind) {
    state_.QuitPending = false;
    work_.run(static_cast<JobKind>(kind), [this](Job& job) {
      EXPECT_FALSE(job.isStopRequested());
      state_.QuitPending = true;
      EXPECT_TRUE(job.isStopRequested());
      EXPECT_TRUE(job.isClosing());
    });
  }
}

TEST_F(WorkTest, RescanAbortIsClearedWhereItIsActedOn) {
  work_.run(JobKind::Refresh, [this](Job& job) {
    EXPECT_FALSE(job.takeRescanAbort());
    state_.RescanAbort = true;
    EXPECT_TRUE(job.takeRescanAbort());
    EXPECT_FALSE(state_.RescanAbort);
  });
}

TEST_F(WorkTest, WithoutAWindowTheEndOfTheProgramAsksForWhatClosingWouldAskFor) {
  display_.onEvents = [this] { display_.ended = true; };
  work_.run(JobKind::Refresh, [this](Job& job) {
    job.letEventsRun();
    EXPECT_TRUE(state_.AbortRequested);
    EXPECT_TRUE(state_.RescanAbort);
  });
  state_.RescanAbort = false;
  work_.run(JobKind::Update, [this](Job& job) {
    job.letEventsRun();
    EXPECT_FALSE(state_.RescanAbort);
  });
}

TEST_F(WorkTest, EventsRunThroughTheDisplay) {
  work_.run(JobKind::Update, [this](Job& job) {
    job.letEventsRun();
    EXPECT_EQ(display_.eventPasses, 1);
    job.waitForEvents();
    EXPECT_EQ(display_.waits, 1);
  });
}

}  // namespace

}  // namespace quorvin::test
