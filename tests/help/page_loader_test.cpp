// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/page_loader.h"

#include "help/fake_page_transfer.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace quorvin::test {
namespace {

struct RecordingView {
  PageDisplay display() {
    return {[this](const Page& page, int position) {
              pages.append(page.text);
              shownAt = position;
            },
            [this](const QString& fragment) { places.append(fragment); }, [this] { return readTo; },
            [this](const QString& address) { finished.append(address); }};
  }

  QStringList pages;
  QStringList places;
  QStringList finished;
  int shownAt = 0;
  int readTo = 0;
};

class PageLoaderTest : public testing::Test {
 protected:
  PageLoaderTest() {
    folder_.writeFile(QStringLiteral("genhelp.htm"), "usage");
    folder_.writeFile(QStringLiteral("relinfo.htm"), "release");
  }
  QString pathOf(const char* name) const { return folder_.pathOf(QString::fromLatin1(name)); }
  void open(const char* address) { loader_.open(QString::fromLatin1(address)); }

  TemporaryFolder folder_;
  FakePageTransfer transfer_;
  RecordingView view_;
  PageLoader loader_{folder_.path(), transfer_, view_.display()};
};

TEST_F(PageLoaderTest, AHelpPageComesAtOnce) {
  loader_.open(pathOf("genhelp.htm"));
  EXPECT_EQ(view_.pages.join(u'|'), QStringLiteral("usage"));
  EXPECT_EQ(view_.finished.join(u'|'), pathOf("genhelp.htm"));
  EXPECT_FALSE(loader_.isBusy());
}

TEST_F(PageLoaderTest, AWebPageComesLaterAndUntilThenTheLoaderIsBusy) {
  open("http://host/a");
  EXPECT_TRUE(loader_.isBusy());
  EXPECT_EQ(loader_.loadingAddress(), QStringLiteral("http://host/a"));
  EXPECT_TRUE(view_.pages.isEmpty());
  transfer_.deliver("hello");
  EXPECT_FALSE(loader_.isBusy());
  EXPECT_EQ(view_.pages.join(u'|'), QStringLiteral("hello"));
  EXPECT_EQ(view_.finished.join(u'|'), QStringLiteral("http://host/a"));
}

TEST_F(PageLoaderTest, StopLeavesThePageAndTheHistoryAsTheyWere) {
  open("genhelp.htm");
  open("http://host/a");
  loader_.stop();
  EXPECT_FALSE(loader_.isBusy());
  EXPECT_EQ(transfer_.stopped, 1);
  EXPECT_EQ(view_.pages.join(u'|'), QStringLiteral("usage"));
  EXPECT_FALSE(loader_.canGoBack());
}

TEST_F(PageLoaderTest, ANewWishEndsTheOneBefore) {
  open("http://host/a");
  open("http://host/b");
  EXPECT_EQ(transfer_.stopped, 1);
  transfer_.deliver("b");
  EXPECT_EQ(view_.finished.join(u'|'), QStringLiteral("http://host/b"));
}

TEST_F(PageLoaderTest, AHelpPageEndsALoadFromTheWeb) {
  open("http://host/a");
  open("genhelp.htm");
  EXPECT_FALSE(loader_.isBusy());
  EXPECT_FALSE(transfer_.isWaiting());
}

TEST_F(PageLoaderTest, BackAndForwardGoWhereThePageWasRead) {
  open("genhelp.htm");
  view_.readTo = 120;
  open("relinfo.htm");
  view_.readTo = 30;
  loader_.goBack();
  EXPECT_EQ(view_.finished.last(), pathOf("genhelp.htm"));
  EXPECT_EQ(view_.shownAt, 120);
  EXPECT_TRUE(loader_.canGoForward());
  loader_.goForward();
  EXPECT_EQ(view_.finished.last(), pathOf("relinfo.htm"));
  EXPECT_EQ(view_.shownAt, 30);
}

TEST_F(PageLoaderTest, BackToAWebPageMovesOnlyWhenThePageHasCome) {
  open("http://host/a");
  transfer_.deliver("a");
  open("genhelp.htm");
  loader_.goBack();
  EXPECT_FALSE(loader_.canGoForward());
  loader_.stop();
  EXPECT_TRUE(loader_.canGoBack());
  loader_.goBack();
  transfer_.deliver("a again");
  EXPECT_FALSE(loader_.canGoBack());
  EXPECT_EQ(view_.pages.last(), QStringLiteral("a again"));
}

TEST_F(PageLoaderTest, BackForwardAndReloadWithoutAPageDoNothing) {
  loader_.goBack();
  loader_.goForward();
  loader_.reload();
  EXPECT_TRUE(view_.pages.isEmpty());
}

TEST_F(PageLoaderTest, ReloadReadsThePageAnewAndStaysWhereItWasRead) {
  open("genhelp.htm");
  folder_.writeFile(QStringLiteral("genhelp.htm"), "usage, new");
  view_.readTo = 55;
  loader_.reload();
  EXPECT_EQ(view_.pages.last(), QStringLiteral("usage, new"));
  EXPECT_EQ(view_.shownAt, 55);
  EXPECT_FALSE(loader_.canGoBack());
}

TEST_F(PageLoaderTest, ALinkIsTakenFromThePageThatIsShown) {
  folder_.writeFile(QStringLiteral("manual/a.htm"), "a");
  open("manual/a.htm");
  loader_.follow(QUrl(QStringLiteral("../relinfo.htm")));
  EXPECT_EQ(view_.finished.last(), pathOf("relinfo.htm"));
}

TEST_F(PageLoaderTest, ALinkWithinThePageOnlyMovesThePage) {
  open("genhelp.htm");
  loader_.follow(QUrl(QStringLiteral("#start")));
  EXPECT_EQ(view_.pages.size(), 1);
  EXPECT_EQ(view_.places.join(u'|'), QStringLiteral("start"));
  EXPECT_EQ(view_.finished.last(), pathOf("genhelp.htm#start"));
  EXPECT_TRUE(loader_.canGoBack());
}

TEST_F(PageLoaderTest, ARedirectedPageIsKnownByItsNewAddress) {
  open("http://host/a");
  transfer_.deliverFrom(QStringLiteral("https://host/b"), "b");
  EXPECT_EQ(view_.finished.join(u'|'), QStringLiteral("https://host/b"));
}

TEST_F(PageLoaderTest, AMissingHelpPageIsToldOnAPage) {
  open("gone.htm");
  EXPECT_TRUE(view_.pages.last().contains(QStringLiteral("This help page is missing")));
  EXPECT_TRUE(view_.pages.last().contains(pathOf("gone.htm")));
  EXPECT_EQ(view_.finished.last(), pathOf("gone.htm"));
}

TEST_F(PageLoaderTest, AnAddressThatIsNoPageIsToldOnAPage) {
  for (const char* address : {"/etc/passwd", "/dev/zero", "file:///etc/passwd", "javascript:alert(1)",
                              "ftp://host/a.htm", "../secret.htm", "qrc:/quorvin/help/stop.svg"}) {
    open(address);
    EXPECT_TRUE(view_.pages.last().contains(QStringLiteral("This address cannot be opened here"))) << address;
  }
  EXPECT_TRUE(transfer_.started.empty());
}

TEST_F(PageLoaderTest, AFailedTransferIsToldOnAPage) {
  open("http://host/a");
  transfer_.fail(QStringLiteral("The server answered: 404 Not Found."));
  EXPECT_TRUE(view_.pages.last().contains(QStringLiteral("The page could not be fetched")));
  EXPECT_TRUE(view_.pages.last().contains(QStringLiteral("404 Not Found")));
  EXPECT_EQ(view_.finished.last(), QStringLiteral("http://host/a"));
}

TEST_F(PageLoaderTest, EmptyTextOpensNothing) {
  open("  ");
  EXPECT_TRUE(view_.pages.isEmpty());
}

}  // namespace
}  // namespace quorvin::test
