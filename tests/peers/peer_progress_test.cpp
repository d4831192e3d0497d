// SPDX-License-Identifier: GPL-2.0-or-later

// The window that shows how lists come from a peer.
#include "peers/client/peer_progress.h"

#include "peers/peer_program.h"

#include <QTest>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class PeerProgressTest : public testing::Test {
 protected:
  PeerProgressTest() {
    QObject::connect(&window_, &PeerProgress::cancelled, &window_, [this] { ++cancellations_; });
    window_.begin(QStringLiteral("<b>nas</b>"));
  }
  QLabel* label(const QString& name) { return window_.findChild<QLabel*>(name); }
  QString text(const QString& name) { return label(name)->text(); }

  PeerProgress window_{QLocale(QLocale::English, QLocale::UnitedStates)};
  int cancellations_ = 0;
};

TEST_F(PeerProgressTest, ShowsPeerListAndBytes) {
  EXPECT_TRUE(window_.isVisible());
  EXPECT_EQ(text(QStringLiteral("Peer")), QStringLiteral("Peer: <b>nas</b>"));
  EXPECT_EQ(text(QStringLiteral("List")), QStringLiteral("Connecting..."));
  window_.showFigures({});
  EXPECT_EQ(text(QStringLiteral("List")), QStringLiteral("Asking for the lists..."));
  window_.showFigures({QStringLiteral("<i>Music</i>"), 2, 5, 1234567});
  EXPECT_EQ(text(QStringLiteral("List")), QStringLiteral("List 2 of 5: <i>Music</i>"));
  EXPECT_EQ(text(QStringLiteral("Bytes")), QStringLiteral("1,234,567 bytes"));
}

TEST_F(PeerProgressTest, WhatAPeerSaysIsNeverMarkup) {
  for (const QString& name : {QStringLiteral("Peer"), QStringLiteral("List"), QStringLiteral("Bytes")}) {
    EXPECT_EQ(label(name)->textFormat(), Qt::PlainText) << name.toStdString();
  }
}

TEST_F(PeerProgressTest, ANewConversationShowsNothingOfTheLast) {
  window_.showFigures({QStringLiteral("Music"), 2, 5, 1234567});
  window_.begin(QStringLiteral("other"));
  EXPECT_EQ(text(QStringLiteral("List")), QStringLiteral("Connecting..."));
  EXPECT_EQ(text(QStringLiteral("Bytes")), QString());
}

TEST_F(PeerProgressTest, ButtonEscAndClosingCancel) {
  window_.findChild<QPushButton*>(QStringLiteral("CancelButton"))->click();
  EXPECT_EQ(cancellations_, 1);
  QTest::keyClick(&window_, Qt::Key_Escape);
  EXPECT_EQ(cancellations_, 2);
  window_.close();
  EXPECT_EQ(cancellations_, 3);
}

}  // namespace

}  // namespace quorvin::test
