// SPDX-License-Identifier: GPL-2.0-or-later

// What becomes of each job while each other one runs.
#include "work/job_table.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

constexpr std::array kEveryKind = {JobKind::Search,     JobKind::Refresh, JobKind::Update,
                                   JobKind::Extraction, JobKind::Packing, JobKind::Getting,
                                   JobKind::Unpacking,  JobKind::Export,  JobKind::Closing};

struct Pair {
  JobKind running;
  JobKind wanted;
  Answer answer;
};

// Every pair, spelled out.
constexpr std::array kPairs = {
    Pair{JobKind::Search, JobKind::Search, Answer::Stops},
    Pair{JobKind::Search, JobKind::Refresh, Answer::Waits},
    Pair{JobKind::Search, JobKind::Update, Answer::Refused},
    Pair{JobKind::Search, JobKind::Extraction, Answer::Refused},
    Pair{JobKind::Search, JobKind::Packing, Answer::Waits},
    Pair{JobKind::Search, JobKind::Getting, Answer::Starts},
    Pair{JobKind::Search, JobKind::Unpacking, Answer::Waits},
    Pair{JobKind::Search, JobKind::Export, Answer::Refused},
    Pair{JobKind::Search, JobKind::Closing, Answer::Stops},

    Pair{JobKind::Refresh, JobKind::Search, Answer::Starts},
    Pair{JobKind::Refresh, JobKind::Refresh, Answer::Waits},
    Pair{JobKind::Refresh, JobKind::Update, Answer::Refused},
    Pair{JobKind::Refresh, JobKind::Extraction, Answer::Refused},
    Pair{JobKind::Refresh, JobKind::Packing, Answer::Waits},
    Pair{JobKind::Refresh, JobKind::Getting, Answer::Starts},
    Pair{JobKind::Refresh, JobKind::Unpacking, Answer::Waits},
    Pair{JobKind::Refresh, JobKind::Export, Answer::Refused},
    Pair{JobKind::Refresh, JobKind::Closing, Answer::Stops},

    Pair{JobKind::Update, JobKind::Search, Answer::Starts},
    Pair{JobKind::Update, JobKind::Refresh, Answer::Refused},
    Pair{JobKind::Update, JobKind::Update, Answer::Refused},
    Pair{JobKind::Update, JobKind::Extraction, Answer::Refused},
    Pair{JobKind::Update, JobKind::Packing, Answer::Waits},
    Pair{JobKind::Update, JobKind::Getting, Answer::Starts},
    Pair{JobKind::Update, JobKind::Unpacking, Answer::Waits},
    Pair{JobKind::Update, JobKind::Export, Answer::Refused},
    Pair{JobKind::Update, JobKind::Closing, Answer::Stops},

    Pair{JobKind::Extraction, JobKind::Search, Answer::Starts},
    Pair{JobKind::Extraction, JobKind::Refresh, Answer::Refused},
    Pair{JobKind::Extraction, JobKind::Update, Answer::Refused},
    Pair{JobKind::Extraction, JobKind::Extraction, Answer::Refused},
    Pair{JobKind::Extraction, JobKind::Packing, Answer::Waits},
    Pair{JobKind::Extraction, JobKind::Getting, Answer::Starts},
    Pair{JobKind::Extraction, JobKind::Unpacking, Answer::Waits},
    Pair{JobKind::Extraction, JobKind::Export, Answer::Refused},
    Pair{JobKind::Extraction, JobKind::Closing, Answer::Stops},

    Pair{JobKind::Packing, JobKind::Search, Answer::Starts},
    Pair{JobKind::Packing, JobKind::Refresh, Answer::Waits},
    Pair{JobKind::Packing, JobKind::Update, Answer::Refused},
    Pair{JobKind::Packing, JobKind::Extraction, Answer::Refused},
    Pair{JobKind::Packing, JobKind::Packing, Answer::Waits},
    Pair{JobKind::Packing, JobKind::Getting, Answer::Starts},
    Pair{JobKind::Packing, JobKind::Unpacking, Answer::Waits},
    Pair{JobKind::Packing, JobKind::Export, Answer::Refused},
    Pair{JobKind::Packing, JobKind::Closing, Answer::Stops},

    Pair{JobKind::Getting, JobKind::Search, Answer::Starts},
    Pair{JobKind::Getting, JobKind::Refresh, Answer::Starts},
    Pair{JobKind::Getting, JobKind::Update, Answer::Starts},
    Pair{JobKind::Getting, JobKind::Extraction, Answer::Starts},
    Pair{JobKind::Getting, JobKind::Packing, Answer::Starts},
    Pair{JobKind::Getting, JobKind::Getting, Answer::Refused},
    Pair{JobKind::Getting, JobKind::Unpacking, Answer::Starts},
    Pair{JobKind::Getting, JobKind::Export, Answer::Starts},
    Pair{JobKind::Getting, JobKind::Closing, Answer::Stops},

    Pair{JobKind::Unpacking, JobKind::Search, Answer::Starts},
    Pair{JobKind::Unpacking, JobKind::Refresh, Answer::Refused},
    Pair{JobKind::Unpacking, JobKind::Update, Answer::Refused},
    Pair{JobKind::Unpacking, JobKind::Extraction, Answer::Refused},
    Pair{JobKind::Unpacking, JobKind::Packing, Answer::Waits},
    Pair{JobKind::Unpacking, JobKind::Getting, Answer::Refused},
    Pair{JobKind::Unpacking, JobKind::Unpacking, Answer::Waits},
    Pair{JobKind::Unpacking, JobKind::Export, Answer::Refused},
    Pair{JobKind::Unpacking, JobKind::Closing, Answer::Stops},

    Pair{JobKind::Export, JobKind::Search, Answer::Starts},
    Pair{JobKind::Export, JobKind::Refresh, Answer::Waits},
    Pair{JobKind::Export, JobKind::Update, Answer::Refused},
    Pair{JobKind::Export, JobKind::Extraction, Answer::Refused},
    Pair{JobKind::Export, JobKind::Packing, Answer::Waits},
    Pair{JobKind::Export, JobKind::Getting, Answer::Starts},
    Pair{JobKind::Export, JobKind::Unpacking, Answer::Waits},
    Pair{JobKind::Export, JobKind::Export, Answer::Refused},
    Pair{JobKind::Export, JobKind::Closing, Answer::Stops},

    Pair{JobKind::Closing, JobKind::Search, Answer::Refused},
    Pair{JobKind::Closing, JobKind::Refresh, Answer::Refused},
    Pair{JobKind::Closing, JobKind::Update, Answer::Refused},
    Pair{JobKind::Closing, JobKind::Extraction, Answer::Refused},
    Pair{JobKind::Closing, JobKind::Packing, Answer::Refused},
    Pair{JobKind::Closing, JobKind::Getting, Answer::Refused},
    Pair{JobKind::Closing, JobKind::Unpacking, Answer::Refused},
    Pair{JobKind::Closing, JobKind::Export, Answer::Refused},
    Pair{JobKind::Closing, JobKind::Closing, Answer::Refused},
};

TEST(JobTable, AnswersEveryPair) {
  ASSERT_EQ(kPairs.size(), kEveryKind.size() * kEveryKind.size());
  for (const Pair& pair : kPairs) {
    EXPECT_EQ(answerWhile(pair.running, pair.wanted), pair.answer)
        << "running " << static_cast<int>(pair.running) << ", wanted " << static_cast<int>(pair.wanted);
  }
}

TEST(JobTable, ClosingIsAlwaysPossible) {
  for (const JobKind running : kEveryKind) {
    if (running == JobKind::Closing) continue;
    EXPECT_EQ(answerWhile(running, JobKind::Closing), Answer::Stops);
  }
}

TEST(JobTable, ARefusalSaysWhatIsRunningAndThatTheOtherCanBeStartedLater) {
  EXPECT_EQ(refusalText(JobKind::Update, JobKind::Refresh),
            u"A web update is running. The rescan can be started when that has ended."_qs);
  EXPECT_EQ(refusalText(JobKind::Extraction, JobKind::Refresh),
            u"The main data file is being unpacked. The rescan can be started when that has ended."_qs);
  EXPECT_EQ(refusalText(JobKind::Refresh, JobKind::Update),
            u"The local folders are being rescanned. The web update can be started when that has ended."_qs);
  EXPECT_EQ(refusalText(JobKind::Search, JobKind::Update),
            u"A search is running. The web update can be started when that has ended."_qs);
  EXPECT_EQ(
      refusalText(JobKind::Packing, JobKind::Update),
      u"Your lists are being packed for sharing. The web update can be started when that has ended."_qs);
  EXPECT_EQ(refusalText(JobKind::Unpacking, JobKind::Getting),
            u"Lists that came from a peer are being unpacked. Getting lists can be started when that has "
            u"ended."_qs);
  EXPECT_EQ(refusalText(JobKind::Getting, JobKind::Getting), u"Lists are already being received."_qs);
}

TEST(JobTable, EveryRefusalHasItsSentenceAndClosingHasNone) {
  for (const Pair& pair : kPairs) {
    if (pair.answer != Answer::Refused) continue;
    const QString text = refusalText(pair.running, pair.wanted);
    EXPECT_EQ(text.isEmpty(), pair.running == JobKind::Closing);
    EXPECT_FALSE(text.contains(u".."_qs)) << text.toStdString();
  }
}

}  // namespace

}  // namespace quorvin::test
