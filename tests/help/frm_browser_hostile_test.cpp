// SPDX-License-Identifier: GPL-2.0-or-later

// Hostile pages: nothing that they name outside the help is opened, and the window stays responsive.
#include "help/frm_browser_fixture.h"
#include "support/sweep.h"

#include <ctime>
#include <fcntl.h>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvin::test {
namespace {

constexpr qint64 kAtOnce = 2000;

/// Measures this process's work, so that a busy machine makes no difference.
class ProcessorTime {
 public:
  qint64 milliseconds() const { return (std::clock() - start_) * 1000 / CLOCKS_PER_SEC; }

 private:
  std::clock_t start_ = std::clock();
};

/// A pipe that notices when somebody opens it for reading.
class WatchedPipe {
 public:
  explicit WatchedPipe(const QString& path) : path_(QFile::encodeName(path)) {
    if (::mkfifo(path_.constData(), 0600) != 0) throw std::runtime_error("no pipe could be made");
  }
  /// Opening for writing without waiting succeeds only while there is a reader.
  bool hasReader() const {
    const int descriptor = ::open(path_.constData(), O_WRONLY | O_NONBLOCK);
    if (descriptor >= 0) ::close(descriptor);
    return descriptor >= 0;
  }

 private:
  QByteArray path_;
};

class FrmBrowserHostile : public FrmBrowserTest {
 protected:
  FrmBrowserHostile() {
    secret_.fill(Qt::red);
    secret_.save(outside_.pathOf(QStringLiteral("secret.png")));
    outside_.writeFile(QStringLiteral("secret.htm"), "<p>secret</p>");
  }

  /// Shows a help page with `html` and gives the time that it took in milliseconds.
  qint64 showPage(const QString& html) {
    folder_.writeFile(QStringLiteral("hostile.htm"), html.toUtf8());
    window().close();
    const ProcessorTime time;
    show("hostile.htm");
    view().grab();
    return time.milliseconds();
  }
  bool showsSecretPicture() {
    const QImage image = view().viewport()->grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) == QColor(Qt::red)) return true;
      }
    }
    return false;
  }
  void follow(const QString& link) { Q_EMIT view().anchorClicked(QUrl(link)); }

  TemporaryFolder outside_;
  QImage secret_{50, 50, QImage::Format_RGB32};
};

TEST_F(FrmBrowserHostile, APictureOfTheHelpIsShown) {
  ASSERT_TRUE(secret_.save(pathOf("red.png")));
  showPage(QStringLiteral("<img src='red.png'>"));
  EXPECT_TRUE(showsSecretPicture());
}

TEST_F(FrmBrowserHostile, PicturesOutsideTheHelpFolderAreNotShown) {
  const QString path = outside_.pathOf(QStringLiteral("secret.png"));
  const QString up = QStringLiteral("../../../../../../../..");
  for (const QString& name : {path, QStringLiteral("file://") + path, up + path, QStringLiteral("//") + path,
                              QStringLiteral("file:") + path}) {
    showPage(QStringLiteral("<img src='%1'>").arg(name));
    EXPECT_FALSE(showsSecretPicture()) << name.toStdString();
  }
}

TEST_F(FrmBrowserHostile, ALinkInTheHelpFolderThatLeadsOutShowsNothing) {
  ASSERT_EQ(::symlink(QFile::encodeName(outside_.pathOf(QStringLiteral("secret.png"))).constData(),
                      QFile::encodeName(pathOf("inside.png")).constData()),
            0);
  showPage(QStringLiteral("<img src='inside.png'>"));
  EXPECT_FALSE(showsSecretPicture());
}

TEST_F(FrmBrowserHostile, DevicesArePassedOver) {
  for (const char* name : {"/dev/zero", "file:///dev/zero", "../../../../../../dev/zero", "/dev/zero.png",
                           "/dev/stdin", "/dev/tty", "/proc/self/mem"}) {
    const QString named = QString::fromLatin1(name);
    const QString html = QStringLiteral(
        "<html><head><link rel='stylesheet' type='text/css' href='%1'></head>"
        "<body background='%1'><table background='%1'><tr><td>x</td></tr></table>"
        "<p><img src='%1'> text</p></body></html>");
    const qint64 took = showPage(html.arg(named));
    EXPECT_LT(took, kAtOnce) << name;
    EXPECT_TRUE(text().contains(QStringLiteral("text"))) << name;
  }
}

TEST_F(FrmBrowserHostile, APipeIsNeverOpened) {
  const WatchedPipe named(pathOf("pipe"));
  const WatchedPipe likeAPicture(pathOf("pipe.png"));
  const WatchedPipe likeAPage(pathOf("pipe.htm"));
  const qint64 took =
      showPage(QStringLiteral("<head><link rel='stylesheet' href='pipe'></head><img src='pipe'>"
                              "<img src='pipe.png'><img src='%1'><p>text</p>")
                   .arg(pathOf("pipe")));
  follow(QStringLiteral("pipe.htm"));
  follow(QStringLiteral("pipe"));
  EXPECT_LT(took, kAtOnce);
  EXPECT_FALSE(named.hasReader());
  EXPECT_FALSE(likeAPicture.hasReader());
  EXPECT_FALSE(likeAPage.hasReader());
}

TEST_F(FrmBrowserHostile, LinksToFilesOutsideOpenNothing) {
  const QString path = outside_.pathOf(QStringLiteral("secret.htm"));
  const QString up = QStringLiteral("../../../../../../../..");
  for (const QString& link : {path, QStringLiteral("file://") + path, up + path, QStringLiteral("/dev/zero"),
                              QStringLiteral("file:///dev/zero"), QStringLiteral("/etc/passwd")}) {
    showPage(QStringLiteral("<p>start</p>"));
    follow(link);
    EXPECT_TRUE(text().startsWith(QStringLiteral("This address cannot be opened here")))
        << link.toStdString() << ": " << text().toStdString();
  }
}

TEST_F(FrmBrowserHostile, AStyleSheetOutsideIsNotRead) {
  outside_.writeFile(QStringLiteral("style.css"), "p { color: #ff0000; background-color: #ff0000 }");
  showPage(
      QStringLiteral("<html><head><link rel='stylesheet' type='text/css' href='%1'></head><body><p>text</p>"
                     "</body></html>")
          .arg(outside_.pathOf(QStringLiteral("style.css"))));
  EXPECT_FALSE(showsSecretPicture());
}

TEST_F(FrmBrowserHostile, AWebPageGetsNoFileOfTheHelpEither) {
  ASSERT_TRUE(secret_.save(pathOf("red.png")));
  show("genhelp.htm");
  openByTyping(QStringLiteral("http://host/a"));
  transfer_.deliver(
      QStringLiteral("<img src='file://%1'><img src='%1'><p>text</p>").arg(pathOf("red.png")).toUtf8());
  view().grab();
  EXPECT_FALSE(showsSecretPicture());
}

TEST_F(FrmBrowserHostile, ScriptsAreNeitherRunNorShown) {
  showPage(
      QStringLiteral("<script>document.write('written')</script><p onclick='x()'>text</p>"
                     "<p><a href='javascript:alert(1)'>link</a></p>"));
  EXPECT_EQ(text(), QStringLiteral("text link"));
  follow(QStringLiteral("javascript:alert(1)"));
  EXPECT_TRUE(text().startsWith(QStringLiteral("This address cannot be opened here")));
}

TEST_F(FrmBrowserHostile, TablesInTablesWithoutEndDoNotBringTheWindowDown) {
  show("genhelp.htm");
  openByTyping(QStringLiteral("http://host/a"));
  const ProcessorTime time;
  transfer_.deliver(QByteArray("<table><tr><td>").repeated(sweep(20000, 5000)));
  view().grab();
  EXPECT_LT(time.milliseconds(), 10 * kAtOnce);
  EXPECT_TRUE(text().startsWith(QStringLiteral("<table>")));
}

TEST_F(FrmBrowserHostile, TheDeepestTablesThatAreLaidOutAreLaidOutSoon) {
  EXPECT_LT(showPage(QStringLiteral("<table><tr><td>").repeated(8) + QStringLiteral("text")), kAtOnce);
  EXPECT_EQ(text(), QStringLiteral("text"));
  EXPECT_LT(showPage(QStringLiteral("<ul><li>").repeated(60) + QStringLiteral("text")), kAtOnce);
  EXPECT_EQ(text(), QStringLiteral("text"));
  EXPECT_LT(showPage(QStringLiteral("<div><blockquote>").repeated(30) + QStringLiteral("text")), kAtOnce);
}

}  // namespace
}  // namespace quorvin::test
