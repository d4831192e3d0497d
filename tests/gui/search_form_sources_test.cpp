// SPDX-License-Identifier: GPL-2.0-or-later

// Sources on their way into the real main window: offered in an empty one, and dropped onto it.
#include "app/search_form_sources.h"

#include "editors/local_loc.h"
#include "gui/keys.h"
#include "gui/search_form_fixture.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace quorvin::test {

namespace {

class IncomingSources : public SearchFormTest {
 protected:
  QCommandLinkButton* offer(const char* name) {
    return form().findChild<QCommandLinkButton*>(QString::fromLatin1(name));
  }
  static QString titleOpenedBy(const std::function<void()>& action) {
    QString title;
    inDialog<LocalLoc>(action, [&](LocalLoc& dialog) {
      title = dialog.windowTitle();
      press(Qt::Key_Escape);
    });
    return title;
  }
  void drop(QWidget& target, const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent event(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &event);
    EXPECT_TRUE(event.isAccepted());
    QCoreApplication::processEvents();
  }
  QUrl url(const QString& name) const { return QUrl::fromLocalFile(files_.pathOf(name)); }

  TemporaryFolder files_;
};

TEST_F(IncomingSources, AnEmptyWindowOffersBothEditorsByClicks) {
  EXPECT_EQ(offer("OfferFolders")->text(), QStringLiteral("&Catalogue folders of your own"));
  EXPECT_EQ(offer("OfferFolders")->description(),
            QStringLiteral("File, Add/Edit Local Folder To Search List"));
  EXPECT_EQ(offer("OfferListings")->text(), QStringLiteral("Search &listings that you have"));
  EXPECT_EQ(offer("OfferListings")->description(), QStringLiteral("File, Add/Edit Offline List files"));
  EXPECT_EQ(titleOpenedBy([this] { QTest::mouseClick(offer("OfferFolders"), Qt::LeftButton); }),
            QStringLiteral("Local File Search Locations"));
  EXPECT_EQ(titleOpenedBy([this] { QTest::mouseClick(offer("OfferListings"), Qt::LeftButton); }),
            QStringLiteral("Offline Search List files"));
}

TEST_F(IncomingSources, AnEmptyWindowOffersBothEditorsByKeys) {
  form();
  tabTo("OfferFolders");
  EXPECT_EQ(titleOpenedBy([] { press(Qt::Key_Return); }), QStringLiteral("Local File Search Locations"));
  tabTo("OfferListings");
  EXPECT_EQ(titleOpenedBy([] { press(Qt::Key_Space); }), QStringLiteral("Offline Search List files"));
}

TEST_F(IncomingSources, TheOffersAreInsideTheListAndOffTheText) {
  const QRect folders = offer("OfferFolders")->geometry();
  const QRect listings = offer("OfferListings")->geometry();
  const QRect area = controls().HitList->viewport()->rect();
  EXPECT_TRUE(area.contains(folders));
  EXPECT_TRUE(area.contains(listings));
  EXPECT_FALSE(folders.intersects(listings));
  EXPECT_GT(folders.top(), area.center().y());
  form().resize(form().size() + QSize(200, 100));
  QCoreApplication::processEvents();
  EXPECT_LE(std::abs(offer("OfferFolders")->geometry().center().x() -
                     controls().HitList->viewport()->rect().center().x()),
            1);
}

TEST_F(IncomingSources, AnOfferThatIsTakenLeavesTheKeysToTheSearch) {
  form();
  tabTo("OfferFolders");
  addMissingOnlineSource(QStringLiteral("Music"));
  form().sourcesChanged();
  EXPECT_FALSE(offer("OfferFolders")->isVisible());
  EXPECT_EQ(focusName(), QStringLiteral("SearchStr"));
}

TEST_F(IncomingSources, WithASourceNothingIsOffered) {
  addMissingOnlineSource(QStringLiteral("Music"));
  EXPECT_FALSE(offer("OfferFolders")->isVisible());
  EXPECT_FALSE(offer("OfferListings")->isVisible());
}

TEST_F(IncomingSources, HitsThatAreShownAreNotCoveredWhenTheLastSourceGoes) {
  addOfflineSource(QStringLiteral("cd.lst"), listingOf("CD", 3, "tune"));
  find(QStringLiteral("tune"));
  state_.OfflineSourceCount = 0;
  form().sourcesChanged();
  EXPECT_FALSE(offer("OfferFolders")->isVisible());
  find(QStringLiteral("tune"));
  EXPECT_TRUE(offer("OfferFolders")->isVisible());
}

TEST_F(IncomingSources, AFolderThatIsDroppedIsAddedAndCataloguedWhenTheUserAgrees) {
  files_.writeFile(QStringLiteral("Music/song.mp3"), "x");
  messages_.answers = {true};
  drop(form(), {url(QStringLiteral("Music"))});
  EXPECT_EQ(messages_.asked,
            std::vector{QStringLiteral("1 folder was added.\r\n\r\nRescan Local Search Locations?")});
  ASSERT_EQ(state_.OnlineSourceCount, 1);
  EXPECT_EQ(state_.OnlineSources.description(1), QStringLiteral("Music"));
  EXPECT_EQ(state_.OnlineSources.path(1), files_.pathOf(QStringLiteral("Music/")));
  EXPECT_TRUE(folder_.readFile(QStringLiteral("Music.txt")).contains("song.mp3"));
  EXPECT_FALSE(offer("OfferFolders")->isVisible());
}

TEST_F(IncomingSources, ListingsThatAreDroppedAreSearchedFromThenOn) {
  files_.writeFile(QStringLiteral("a.lst"), listingOf("CD 1", 1, "tune"));
  files_.writeFile(QStringLiteral("b.lst"), listingOf("CD 2", 1, "tune"));
  drop(form(), {url(QStringLiteral("a.lst")), url(QStringLiteral("b.lst")), url(QStringLiteral("a.lst"))});
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("2 listings were added.\r\n%1 is in the list already.")
                            .arg(files_.pathOf(QStringLiteral("a.lst")))});
  find(QStringLiteral("tune"));
  EXPECT_EQ(volumes(), (QStringList{QStringLiteral("CD 1"), QStringLiteral("CD 2")}));
}

TEST_F(IncomingSources, TheSearchBoxTakesDropsAsSourcesNotAsText) {
  files_.writeFile(QStringLiteral("a.lst"), listingOf("CD 1", 1, "tune"));
  drop(*controls().SearchStr, {url(QStringLiteral("a.lst"))});
  EXPECT_EQ(state_.OfflineSourceCount, 1);
  EXPECT_EQ(controls().SearchStr->text(), QString());
}

}  // namespace

}  // namespace quorvin::test
