// SPDX-License-Identifier: GPL-2.0-or-later

// Faults that reach the edge of the event loop.
#include "app/main_application.h"

#include "faults/runtime_fault.h"
#include "gui/last_resort_messages.h"
#include "support/eventually.h"

#include <QApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QMetaMethod>
#include <QPixmapCache>
#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstddef>
#include <new>

namespace quorvin::test {

namespace {

class FailingReceiver : public QObject {
 public:
  bool event(QEvent*) override {
    throw RuntimeFault(FaultNumber::DiskFull, QStringLiteral("Disk full: /data"));
  }
};

void* allocateWithoutMemory() {
  throw std::bad_alloc();
}

/// As one of the toolkit's functions that promise to throw nothing.
void workWithoutMemory() noexcept {
  allocateWithoutMemory();
}

TEST(MainApplicationDeathTest, WithoutMemoryItEndsWithASentence) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        endWithSentence();
        workWithoutMemory();
      },
      testing::ExitedWithCode(2),
      "quorvin: There is not enough memory to go on. What was not saved is offered at the next start.");
}

TEST(MainApplication, KeepsFewDrawnPartsOfControls) {
  EXPECT_EQ(QPixmapCache::cacheLimit(), 1024);
}

TEST(MainApplication, TellsAFaultThatNoHandlerDealtWithAndGoesOn) {
  lastResortMessages().informed.clear();
  FailingReceiver receiver;
  QCoreApplication::postEvent(&receiver, new QEvent(QEvent::User));
  QCoreApplication::processEvents();
  ASSERT_EQ(lastResortMessages().informed.size(), 1U);
  EXPECT_EQ(lastResortMessages().informed[0],
            QStringLiteral("Run-time error '61': Disk full: /data\r\n\r\n"
                           "This happened while handling an event of the window system."));
}

/// As the toolkit does when the desktop session ends. The session manager itself is one of its private
/// classes; nobody looks at it here.
void endTheSession() {
  alignas(std::max_align_t) std::array<char, 64> manager{};
  const QMetaMethod ending = QMetaMethod::fromSignal(&QGuiApplication::commitDataRequest);
  ASSERT_TRUE(
      ending.invoke(qApp, Qt::DirectConnection, QGenericArgument("QSessionManager&", manager.data())));
}

TEST(MainApplication, ItsWindowsHaveAnIconInEverySize) {
  giveWindowsTheirIcon();
  const QIcon icon = QGuiApplication::windowIcon();
  for (const int side : {16, 24, 32, 48, 128, 256}) {
    const QImage picture = icon.pixmap(QSize(side, side), 1.0).toImage();
    ASSERT_EQ(picture.size(), QSize(side, side));
    int golden = 0;
    for (int y = 0; y < side; ++y) {
      for (int x = 0; x < side; ++x) golden += picture.pixelColor(x, y) == QColor(0xF6, 0xB7, 0x3C) ? 1 : 0;
    }
    EXPECT_GT(golden, side / 16) << side << ": the lens is missing";
  }
}

TEST(MainApplication, LeavesAtASignalAndAtTheEndOfTheSession) {
  auto* application = qobject_cast<Application*>(qApp);
  ASSERT_NE(application, nullptr);
  int calls = 0;
  application->setLeaveHandler([&] { ++calls; });
  endTheSession();
  EXPECT_EQ(calls, 1) << "before the session goes on";
  std::raise(SIGTERM);
  EXPECT_EVENTUALLY(calls == 2);
  application->setLeaveHandler({});
  endTheSession();
  EXPECT_EQ(calls, 2);
}

}  // namespace

}  // namespace quorvin::test
