// SPDX-License-Identifier: GPL-2.0-or-later

// What "quorvin-cli find" does on a terminal and nowhere else.
#include "console/console_program.h"
#include "files/descriptor.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <QFile>

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvin {
namespace {

class OnTerminal : public test::ConsoleProgramTest {
 protected:
  OnTerminal() : terminal_(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    EXPECT_EQ(::grantpt(terminal_.get()), 0);
    EXPECT_EQ(::unlockpt(terminal_.get()), 0);
    EXPECT_EQ(::fcntl(terminal_.get(), F_SETFL, O_NONBLOCK), 0);
    setVariable(u"TERM"_qs, u"xterm"_qs);
    setVariable(u"NO_COLOR"_qs, QString());
  }

  void setVariable(const QString& name, const QString& value) {
    QProcessEnvironment environment = process.processEnvironment();
    environment.insert(name, value);
    process.setProcessEnvironment(environment);
  }
  /// The program gets the terminal as that descriptor.
  void connectTo(int descriptor) {
    const std::string name = ::ptsname(terminal_.get());
    process.setChildProcessModifier([name, descriptor] {
      const int terminal = ::open(name.c_str(), O_RDWR | O_NOCTTY);
      ::dup2(terminal, descriptor);
      ::close(terminal);
    });
  }
  /// What has come to the terminal since the last call.
  QByteArray shown() const {
    QByteArray text;
    std::array<char, 4096> buffer;
    for (ssize_t count = 0; (count = ::read(terminal_.get(), buffer.data(), buffer.size())) > 0;) {
      text.append(buffer.data(), count);
    }
    return text;
  }

  QByteArray shownOf(const QByteArray& name, const QStringList& options) {
    const QString listing = folder.writeFile(u"cd7.lst"_qs, test::entryLine(name));
    connectTo(STDOUT_FILENO);
    EXPECT_EQ(
        run(QStringList{u"find"_qs, u"--fields"_qs, u"name"_qs} + options + QStringList{u"song"_qs, listing})
            .status,
        0);
    return shown();
  }

 private:
  Descriptor terminal_;
};

TEST_F(OnTerminal, WordsAreHighlightedUnlessTheUserWantsNoColours) {
  const QByteArray marked = "a \x1B[1;31mSong\x1B[m\r\n";
  EXPECT_EQ(shownOf("a Song", {}), marked);
  EXPECT_EQ(shownOf("a Song", {u"--color"_qs, u"never"_qs}), "a Song\r\n");
  setVariable(u"NO_COLOR"_qs, u"1"_qs);
  EXPECT_EQ(shownOf("a Song", {}), "a Song\r\n");
  EXPECT_EQ(shownOf("a Song", {u"--color"_qs, u"always"_qs}), marked);
  setVariable(u"NO_COLOR"_qs, QString());
  setVariable(u"TERM"_qs, u"dumb"_qs);
  EXPECT_EQ(shownOf("a Song", {}), "a Song\r\n");
}

TEST_F(OnTerminal, ControlCharactersOfNamesDoNotGetThrough) {
  const QByteArray name =
      "song \x1B[2J \xC2\x9B"
      "31m";
  const QStringList plain{u"--color"_qs, u"never"_qs};
  EXPECT_EQ(shownOf(name, plain), "song  [2J ?31m\r\n");
  EXPECT_EQ(shownOf(name, plain + QStringList{u"--format"_qs, u"csv"_qs, u"--no-header"_qs}),
            "song ?[2J ?31m\r\n");
  EXPECT_EQ(shownOf(name, plain + QStringList{u"--format"_qs, u"json"_qs}),
            "{\"name\":\"song \\u001b[2J \\u009b31m\"}\r\n");
}

TEST_F(OnTerminal, TheFirstSearchOfALongListingSaysHowFarItIs) {
  const QString pipe = folder.pathOf(u"pipe"_qs);
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  connectTo(STDERR_FILENO);
  start({u"find"_qs, u"--count"_qs, u"song"_qs, pipe});
  const QByteArray entries = test::entryLine("tune").repeated(500);
  QByteArray seen;
  int writer = -1;
  while (process.state() == QProcess::Running && !seen.contains(" searched")) {
    if (writer < 0) writer = ::open(QFile::encodeName(pipe).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    const auto size = static_cast<std::size_t>(entries.size());
    const bool isFull = writer < 0 || ::write(writer, entries.constData(), size) <= 0;
    if (isFull) process.waitForFinished(1);
    seen += shown();
  }
  ::close(writer);
  EXPECT_TRUE(seen.startsWith("\r\x1B[K0 found, ")) << seen.toStdString();
  EXPECT_EQ(end().output, "0\n");
  // The line is taken away before the last one is written.
  seen += shown();
  const qsizetype last = seen.lastIndexOf("0 found, ");
  EXPECT_TRUE(seen.endsWith(" searched\r\n")) << seen.toStdString();
  EXPECT_TRUE(seen.first(last).endsWith("searched\r\x1B[K")) << seen.toStdString();
}

}  // namespace
}  // namespace quorvin
