// SPDX-License-Identifier: GPL-2.0-or-later

// The help pages hold together: every link and every picture of every page works in the help browser.
#include "help/fake_page_transfer.h"
#include "help/frm_browser.h"
#include "help/manual_pages.h"
#include "support/qt_printing.h"
#include "support/sweep.h"
#include "texts/languages.h"

#include <QApplication>
#include <QImage>
#include <QSet>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvin::test {
namespace {

QStringList linksOf(const QString& page) {
  return allMatches(manualText(page), QStringLiteral("<a href=\"([^\"]*)\""));
}

bool isTranslated(const QString& page) {
  return translatedLanguages().contains(page.section(u'/', 0, 0));
}

/// Those that the pages of a language show, from the help folder on, sorted; of no language for English.
QStringList picturesOf(const QString& language) {
  QStringList pictures;
  for (const QString& page : manualPages()) {
    if ((isTranslated(page) ? page.section(u'/', 0, 0) : QString()) != language) continue;
    for (const QString& name : allMatches(manualText(page), QStringLiteral("<img src=\"([^\"]*)\""))) {
      pictures += QDir::cleanPath(QFileInfo(page).path() + u'/' + name);
    }
  }
  pictures.sort();
  pictures.removeDuplicates();
  return pictures;
}

QString placePattern(const QString& place) {
  return QStringLiteral("( id=\"%1\")").arg(QRegularExpression::escape(place));
}

class HelpPages : public testing::Test {
 protected:
  /// Every test goes through the pages, and would pass if there were none.
  void SetUp() override {
    ASSERT_GE(manualPages().size(), 14);
    for (const QString& page : manualPages()) {
      ASSERT_TRUE(manualText(page).contains(QStringLiteral("<h1>"))) << page.toStdString();
    }
  }

  FakePageTransfer transfer_;
  frmBrowser window_{pagesFolder(), transfer_};
};

TEST_F(HelpPages, TheNamedPagesAreThere) {
  EXPECT_TRUE(manualPages().contains(QStringLiteral("genhelp.htm")));
  EXPECT_TRUE(manualPages().contains(QStringLiteral("relinfo.htm")));
  EXPECT_TRUE(manualPages().contains(QStringLiteral("index.htm")));
}

TEST_F(HelpPages, EveryLanguageHasEveryPageWithTheSamePlaces) {
  for (const QString& language : translatedLanguages()) {
    for (const QString& page : manualPages()) {
      if (isTranslated(page)) continue;
      const QString translated = language + u'/' + page;
      ASSERT_TRUE(manualPages().contains(translated)) << translated.toStdString();
      EXPECT_TRUE(manualText(translated).contains(QStringLiteral("<html lang=\"%1\">").arg(language)))
          << translated.toStdString();
      // What is in an index, and under which letter, is the language's own.
      if (page == QStringLiteral("index.htm")) continue;
      for (const QString& kind : {QStringLiteral("(id=\"[^\"]*\")"), QStringLiteral("(<tr>)"),
                                  QStringLiteral("(<li>)"), QStringLiteral("<pre>(.*?)</pre>")}) {
        EXPECT_EQ(allMatches(manualText(translated), kind), allMatches(manualText(page), kind))
            << translated.toStdString();
      }
    }
  }
}

TEST_F(HelpPages, EveryLinkLeadsToAPlaceThatIsThere) {
  int links = 0;
  for (const QString& page : manualPages()) {
    const QUrl base = QUrl::fromLocalFile(pagesFolder() + page);
    for (const QString& link : linksOf(page)) {
      const QUrl target = base.resolved(QUrl(link));
      ASSERT_TRUE(target.isLocalFile()) << page.toStdString() << " -> " << link.toStdString();
      const QString targetPage = target.toLocalFile().mid(pagesFolder().size());
      ASSERT_TRUE(manualPages().contains(targetPage)) << page.toStdString() << " -> " << link.toStdString();
      if (target.hasFragment()) {
        EXPECT_EQ(allMatches(manualText(targetPage), placePattern(target.fragment())).size(), 1)
            << page.toStdString() << " -> " << link.toStdString();
      }
      ++links;
    }
  }
  EXPECT_GT(links, 100);
}

// The same link from the same folder leads to the same page; it is followed from each page where everything
// is tried.
TEST_F(HelpPages, EveryLinkOpensItsPageWhenItIsFollowed) {
  QSet<QString> followed;
  window_.showHelp(pagesFolder() + QStringLiteral("genhelp.htm"));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
  for (const QString& page : manualPages()) {
    const QUrl base = QUrl::fromLocalFile(pagesFolder() + page);
    for (const QString& link : linksOf(page)) {
      const QString target = base.resolved(QUrl(link)).toLocalFile();
      if (!test::triesEverything() && followed.contains(target)) continue;
      followed.insert(target);
      window_.controls().cboAddress->setEditText(pagesFolder() + page);
      QTest::keyClick(window_.controls().cboAddress, Qt::Key_Return);
      Q_EMIT window_.controls().brwWebBrowser->anchorClicked(QUrl(link));
      const QString title =
          allMatches(manualText(target.mid(pagesFolder().size())), QStringLiteral("<h1>(.*?)</h1>")).value(0);
      const QString shown = window_.controls().brwWebBrowser->toPlainText();
      EXPECT_TRUE(shown.contains(u'\n' + title + u'\n'))
          << page.toStdString() << " -> " << link.toStdString();
    }
  }
}

TEST_F(HelpPages, ALinkToAPlaceGoesDownToIt) {
  window_.resize(600, 400);
  window_.showHelp(pagesFolder() + QStringLiteral("manual/searching.htm"));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
  EXPECT_EQ(window_.controls().brwWebBrowser->position(), 0);
  Q_EMIT window_.controls().brwWebBrowser->anchorClicked(QUrl(QStringLiteral("#stop")));
  EXPECT_GT(window_.controls().brwWebBrowser->position(), 400);
  Q_EMIT window_.controls().brwWebBrowser->anchorClicked(QUrl(QStringLiteral("hits.htm#player")));
  EXPECT_GT(window_.controls().brwWebBrowser->position(), 100);
}

TEST_F(HelpPages, EveryPictureIsShown) {
  window_.showHelp(pagesFolder() + QStringLiteral("genhelp.htm"));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
  HelpView& view = *window_.controls().brwWebBrowser;
  int pictures = 0;
  for (const QString& page : manualPages()) {
    window_.controls().cboAddress->setEditText(pagesFolder() + page);
    QTest::keyClick(window_.controls().cboAddress, Qt::Key_Return);
    for (const QString& name : allMatches(manualText(page), QStringLiteral("<img src=\"([^\"]*)\""))) {
      const QImage image = view.loadResource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
      EXPECT_GT(image.width(), 100) << page.toStdString() << ": " << name.toStdString();
      ++pictures;
    }
  }
  EXPECT_GE(pictures, 4);
}

TEST_F(HelpPages, EveryPictureHasWordsForThoseWhoDoNotSeeIt) {
  for (const QString& page : manualPages()) {
    const QString text = manualText(page);
    EXPECT_EQ(allMatches(text, QStringLiteral("(<img )")).size(),
              allMatches(text, QStringLiteral("<img src=\"[^\"]*\" alt=\"([^\"]{10,})\"")).size())
        << page.toStdString();
  }
}

TEST_F(HelpPages, TheWindowsOfThePicturesSpeakTheLanguageOfThePageAndEachPictureIsUsed) {
  for (const QString& language : QStringList{QString()} + translatedLanguages()) {
    const QString images =
        language.isEmpty() ? QStringLiteral("images/") : language + QStringLiteral("/images/");
    QStringList files;
    for (const QString& name : QDir(pagesFolder() + images).entryList(QDir::Files)) files += images + name;
    EXPECT_EQ(picturesOf(language), files) << language.toStdString();
    EXPECT_EQ(files.size(), 19) << language.toStdString();
  }
}

TEST_F(HelpPages, EveryPageIsReachedFromTheGeneralHelpAndStandsInTheIndex) {
  for (const QString& folder : QStringList{QString()} + translatedLanguages()) {
    const QString start = folder.isEmpty() ? QString() : folder + u'/';
    const QStringList fromIndex = linksOf(start + QStringLiteral("index.htm"));
    const QStringList fromUsage = linksOf(start + QStringLiteral("genhelp.htm"));
    for (const QString& page : manualPages()) {
      if (!page.startsWith(QStringLiteral("manual/"))) continue;
      EXPECT_TRUE(fromUsage.contains(page)) << start.toStdString() << page.toStdString();
      EXPECT_TRUE(fromIndex.contains(page)) << start.toStdString() << page.toStdString();
    }
  }
}

// Debian's lintian takes a page with a line of more than 512 bytes for the output of a program.
TEST_F(HelpPages, NoPageHasLinesThatLookLikeAPackersOutput) {
  for (const QString& page : manualPages()) {
    for (const QByteArray& line : manualText(page).toUtf8().split('\n')) {
      EXPECT_LE(line.size(), 500) << page.toStdString() << ": " << line.toStdString();
    }
  }
}

TEST_F(HelpPages, NoPageSetsColoursThatADarkThemeWouldHide) {
  for (const QString& page : manualPages()) {
    const QString text = manualText(page);
    EXPECT_FALSE(text.contains(QRegularExpression(QStringLiteral("bgcolor|style=|<style|color=|<font"))))
        << page.toStdString();
  }
}

TEST_F(HelpPages, ReleaseInformationNamesTheVersion) {
  EXPECT_TRUE(manualText(QStringLiteral("relinfo.htm")).contains(QStringLiteral("Version 2.5.64")));
}

}  // namespace
}  // namespace quorvin::test
