// SPDX-License-Identifier: GPL-2.0-or-later

// The exported page in a real browser without a screen: searched and sorted as people do it, with keys and
// clicks, over the browser's own debugging pipe.
#include "hits/hit_export.h"
#include "support/temporary_folder.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QUrl>
#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <unistd.h>

namespace quorvin::test {

namespace {

/// One end of a pipe that is closed with the object.
class PipeEnd {
 public:
  explicit PipeEnd(int descriptor) : descriptor_(descriptor) {}
  ~PipeEnd() { ::close(descriptor_); }
  PipeEnd(const PipeEnd&) = delete;
  PipeEnd& operator=(const PipeEnd&) = delete;
  int get() const { return descriptor_; }

 private:
  int descriptor_;
};

std::array<int, 2> makePipe() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  return ends;
}

/// A browser with one page. It reads commands at its descriptor 3 and answers at 4, each ended by a zero
/// byte.
class Browser {
 public:
  explicit Browser(const QString& profile) : Browser(profile, makePipe(), makePipe()) {}
  /// Lets it end by itself, so that it removes what it has made.
  ~Browser() {
    session_.clear();
    send(QStringLiteral("Browser.close"), {});
    process_.waitForFinished(-1);
  }
  Browser(const Browser&) = delete;
  Browser& operator=(const Browser&) = delete;

  /// Opens the page at `path` and waits until its script has run.
  void open(const QString& path) {
    const QJsonObject target =
        call(QStringLiteral("Target.createTarget"),
             {{QStringLiteral("url"), QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)}});
    const QJsonObject session = call(QStringLiteral("Target.attachToTarget"),
                                     {{QStringLiteral("targetId"), target[QStringLiteral("targetId")]},
                                      {QStringLiteral("flatten"), true}});
    session_ = session[QStringLiteral("sessionId")].toString();
    while (
        value(QStringLiteral("document.readyState + (document.getElementById('count')?.textContent ?? '')"))
            .toString()
            .size() <= QStringLiteral("complete").size()) {
    }
  }

  QJsonValue value(const QString& expression) {
    const QJsonObject answer =
        call(QStringLiteral("Runtime.evaluate"),
             {{QStringLiteral("expression"), expression}, {QStringLiteral("returnByValue"), true}});
    EXPECT_FALSE(answer.contains(QStringLiteral("exceptionDetails")))
        << QJsonDocument(answer).toJson().toStdString();
    return answer[QStringLiteral("result")].toObject()[QStringLiteral("value")];
  }
  QString text(const QString& expression) { return value(expression).toString(); }

  void type(const QString& words) {
    call(QStringLiteral("Input.insertText"), {{QStringLiteral("text"), words}});
  }
  /// Clicks the middle of what the selector finds first.
  void click(const QString& selector) {
    const QJsonArray place = value(QStringLiteral("(r => [r.x + r.width / 2, r.y + r.height / 2])(document."
                                                  "querySelector('%1').getBoundingClientRect())")
                                       .arg(selector))
                                 .toArray();
    for (const QString& kind : {QStringLiteral("mousePressed"), QStringLiteral("mouseReleased")}) {
      call(QStringLiteral("Input.dispatchMouseEvent"), {{QStringLiteral("type"), kind},
                                                        {QStringLiteral("x"), place.at(0)},
                                                        {QStringLiteral("y"), place.at(1)},
                                                        {QStringLiteral("button"), QStringLiteral("left")},
                                                        {QStringLiteral("clickCount"), 1}});
    }
  }
  void preferDark() {
    const QJsonObject dark{{QStringLiteral("name"), QStringLiteral("prefers-color-scheme")},
                           {QStringLiteral("value"), QStringLiteral("dark")}};
    call(QStringLiteral("Emulation.setEmulatedMedia"), {{QStringLiteral("features"), QJsonArray{dark}}});
  }

 private:
  Browser(const QString& profile, std::array<int, 2> commands, std::array<int, 2> answers)
      : commands_(commands[1]), answers_(answers[0]) {
    const PipeEnd itsCommands(commands[0]);
    const PipeEnd itsAnswers(answers[1]);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
      environment.insert(QString::fromLatin1(name), profile);
    }
    process_.setProcessEnvironment(environment);
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.setChildProcessModifier([&] {
      // Neither may be in the place of the other.
      const int in = ::fcntl(itsCommands.get(), F_DUPFD, 10);
      const int out = ::fcntl(itsAnswers.get(), F_DUPFD, 10);
      ::dup2(in, 3);
      ::dup2(out, 4);
    });
    process_.start(
        QStringLiteral(QUORVIN_CHROMIUM),
        {QStringLiteral("--headless=new"), QStringLiteral("--no-sandbox"), QStringLiteral("--disable-gpu"),
         QStringLiteral("--disable-dev-shm-usage"), QStringLiteral("--no-first-run"),
         QStringLiteral("--window-size=1200,800"), QStringLiteral("--remote-debugging-pipe"),
         QStringLiteral("--user-data-dir=") + profile, QStringLiteral("about:blank")});
    if (!process_.waitForStarted(-1)) throw std::runtime_error("no browser");
  }

  void send(const QString& method, const QJsonObject& parameters) {
    QJsonObject command{{QStringLiteral("id"), ++lastId_},
                        {QStringLiteral("method"), method},
                        {QStringLiteral("params"), parameters}};
    if (!session_.isEmpty()) command[QStringLiteral("sessionId")] = session_;
    QByteArray bytes = QJsonDocument(command).toJson(QJsonDocument::Compact);
    bytes.append('\0');
    if (::write(commands_.get(), bytes.constData(), static_cast<std::size_t>(bytes.size())) != bytes.size()) {
      ADD_FAILURE() << "the browser reads nothing any more";
    }
  }

  QJsonObject call(const QString& method, const QJsonObject& parameters) {
    send(method, parameters);
    for (;;) {
      const QJsonObject answer = readAnswer();
      if (answer[QStringLiteral("id")].toInt() != lastId_) continue;
      EXPECT_FALSE(answer.contains(QStringLiteral("error"))) << QJsonDocument(answer).toJson().toStdString();
      return answer[QStringLiteral("result")].toObject();
    }
  }

  QJsonObject readAnswer() {
    while (!read_.contains('\0')) {
      std::array<char, 65536> part;
      const ssize_t count = ::read(answers_.get(), part.data(), part.size());
      if (count <= 0) throw std::runtime_error("the browser has ended");
      read_.append(part.data(), count);
    }
    const qsizetype end = read_.indexOf('\0');
    const QByteArray answer = read_.left(end);
    read_.remove(0, end + 1);
    return QJsonDocument::fromJson(answer).object();
  }

  QProcess process_;
  PipeEnd commands_;
  PipeEnd answers_;
  QByteArray read_;
  QString session_;
  int lastId_ = 0;
};

class PageInBrowser : public testing::Test {
 protected:
  static HitRow row(const char* folder, const QString& name, std::int64_t size, int match, DateValue date) {
    return {static_cast<std::int16_t>(match),
            SourceKind::Online,
            QStringLiteral("CD 7"),
            QString::fromLatin1(folder),
            name,
            size,
            date};
  }
  /// Opens a page with these hits.
  void open(const std::vector<HitRow>& rows, Qt::LayoutDirection direction = Qt::LeftToRight) {
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const auto page = makeExportText(ExportFormat::Html, english, direction);
    std::string text;
    page->start(text);
    for (const HitRow& hit : rows) page->add(text, hit);
    page->end(text);
    browser_.open(folder_.writeFile(QStringLiteral("page.html"), QByteArray::fromStdString(text)));
  }
  void openThree() {
    open({row("\\Rock\\", QStringLiteral("track 10.mp3"), 3'000'000, 100, 38001),
          row("\\Rock\\", QStringLiteral("Track 9.mp3"), 20'000'000, 50, 37001),
          row("\\Jazz\\", QStringLiteral("live.mp3"), 1000, 67, 39001)});
  }
  QString names() {
    return browser_.text(QStringLiteral(
        "[...document.querySelectorAll('#rows tr')].map(row => row.cells[3].textContent).join('|')"));
  }
  QString count() { return browser_.text(QStringLiteral("document.getElementById('count').textContent")); }
  void sortBy(const char* column) {
    browser_.click(QStringLiteral("button[data-by=%1]").arg(QLatin1String(column)));
  }
  void search(const QString& words) {
    browser_.click(QStringLiteral("#words"));
    browser_.type(words);
  }

  TemporaryFolder folder_;
  TemporaryFolder profile_;
  Browser browser_{profile_.path()};
};

TEST_F(PageInBrowser, ShowsItsHitsInTheOrderInWhichTheyWereFound) {
  openThree();
  EXPECT_EQ(names(), QStringLiteral("track 10.mp3|Track 9.mp3|live.mp3"));
  EXPECT_EQ(count(), QStringLiteral("3 of 3 shown"));
  EXPECT_EQ(
      browser_.text(QStringLiteral("document.querySelector('#rows tr').innerText.replaceAll('\\t', '|')")),
      QStringLiteral("100%|CD 7|\\Rock\\|track 10.mp3|2.86mb|Jan, 15 04"));
}

TEST_F(PageInBrowser, AClickOnATitleSortsUpThenDownThenAsFound) {
  openThree();
  const QString found = names();
  sortBy("size");
  EXPECT_EQ(names(), QStringLiteral("live.mp3|track 10.mp3|Track 9.mp3"));
  sortBy("size");
  EXPECT_EQ(names(), QStringLiteral("Track 9.mp3|track 10.mp3|live.mp3"));
  EXPECT_EQ(browser_.text(QStringLiteral(
                "document.querySelector('button[data-by=size]').parentElement.getAttribute('aria-sort')")),
            QStringLiteral("descending"));
  sortBy("size");
  EXPECT_EQ(names(), found);
  sortBy("name");
  EXPECT_EQ(names(), QStringLiteral("live.mp3|Track 9.mp3|track 10.mp3")) << "numbers count as numbers";
  sortBy("date");
  EXPECT_EQ(names(), QStringLiteral("Track 9.mp3|track 10.mp3|live.mp3"));
  sortBy("match");
  EXPECT_EQ(names(), QStringLiteral("Track 9.mp3|live.mp3|track 10.mp3"));
  sortBy("folder");
  EXPECT_EQ(names(), QStringLiteral("live.mp3|track 10.mp3|Track 9.mp3"));
}

TEST_F(PageInBrowser, WordsAreSearchedInFoldersAndNames) {
  openThree();
  search(QStringLiteral("ROCK 9"));
  EXPECT_EQ(names(), QStringLiteral("Track 9.mp3"));
  EXPECT_EQ(count(), QStringLiteral("1 of 3 shown"));
  browser_.type(QStringLiteral(" nothing"));
  EXPECT_EQ(names(), QString());
  EXPECT_TRUE(browser_.value(QStringLiteral("document.getElementById('none').checkVisibility()")).toBool());
}

TEST_F(PageInBrowser, EveryNameIsShownAsItIsAndNoneRuns) {
  const QString hostile =
      QStringLiteral("</script><img src=x onerror='document.title=1'>&lt;\u2028\"'\u202E.mp3");
  open({row("\\<b>\\", hostile, 1, 100, 0)});
  EXPECT_EQ(names(), hostile);
  EXPECT_EQ(browser_.text(QStringLiteral("document.title")), QStringLiteral("Hits - Quorvin Utility"));
  EXPECT_EQ(browser_.value(QStringLiteral("document.images.length")).toInt(), 0);
}

TEST_F(PageInBrowser, ManyHitsAreDrawnAsTheyAreScrolledTo) {
  std::vector<HitRow> rows;
  for (int number = 1; number <= 100'000; ++number) {
    rows.push_back(row("\\Rock\\", QStringLiteral("song %1").arg(number), number, 100, 38001));
  }
  open(rows);
  const auto drawn = [this] {
    return browser_.value(QStringLiteral("document.querySelectorAll('#rows tr').length")).toInt();
  };
  EXPECT_EQ(count(), QStringLiteral("100,000 of 100,000 shown"));
  EXPECT_LT(drawn(), 2000);
  const int before = drawn();
  browser_.value(QStringLiteral("scrollTo(0, document.body.scrollHeight)"));
  while (drawn() == before) {
  }
  search(QStringLiteral("99999"));
  EXPECT_EQ(names(), QStringLiteral("song 99999"));
}

TEST_F(PageInBrowser, IsDarkWhereTheDesktopIsAndReadFromTheRightWhereThePageIs) {
  open({row("\\Rock\\", QStringLiteral("שלום.mp3"), 1, 100, 0)}, Qt::RightToLeft);
  const auto style = [this](const char* what) {
    return browser_.text(QStringLiteral("getComputedStyle(document.body).%1").arg(QLatin1String(what)));
  };
  EXPECT_EQ(style("direction"), QStringLiteral("rtl"));
  EXPECT_EQ(style("backgroundColor"), QStringLiteral("rgb(255, 255, 255)"));
  browser_.preferDark();
  EXPECT_EQ(style("backgroundColor"), QStringLiteral("rgb(30, 30, 30)"));
  EXPECT_EQ(style("color"), QStringLiteral("rgb(230, 230, 230)"));
}

}  // namespace

}  // namespace quorvin::test
