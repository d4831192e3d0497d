// SPDX-License-Identifier: GPL-2.0-or-later

// What is done with hits whose files are there, by keys and by dragging, read over the accessibility bus.
#include "accessibility/keyboard_points.h"
#include "files/path_style.h"
#include "support/sweep.h"

#include <QDataStream>
#include <QLocale>

namespace quorvin::test {

namespace {

/// The hits of a disk that is not here: one, or so many as large catalogues have.
constexpr int kFew = 1;
const int kMany = sweep(1'000'000, 110'000);

/// A picture of 16 by 16 grey pixels.
QByteArray bitmap() {
  constexpr quint32 kSide = 16;
  constexpr quint32 kHeadSize = 54;
  constexpr quint32 kPixelBytes = kSide * kSide * 3;
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  out.writeRawData("BM", 2);
  out << quint32{kHeadSize + kPixelBytes} << quint32{0} << kHeadSize;
  out << quint32{40} << kSide << kSide << quint16{1} << quint16{24} << quint32{0} << kPixelBytes;
  out << quint32{2835} << quint32{2835} << quint32{0} << quint32{0};
  return bytes + QByteArray(kPixelBytes, '\x80');
}

/// Two songs and a picture that are there, and songs of a disk that is not.
class HitsWithFilesByKeys : public KeyboardPoints {
 protected:
  explicit HitsWithFilesByKeys(int farSongs = kFew) : farSongs_(farSongs) {}

  void SetUp() override {
    folder_.writeFile(text("defaults.txt"),
                      folder_.path().toLocal8Bit() + "\r\nmain.lst\r\nmain.zip\r\nhost.invalid\r\n");
    folder_.writeFile(text("main.lst"),
                      blockHead("DISK", "\\Music\\") + entryLine("far song.mp3").repeated(farSongs_));
    QByteArray listing = blockHead("Files", listedFolder(filesFolder(), nativePathStyle()).toLocal8Bit());
    for (const char* name : {"one song.mp3", "picture.bmp", "two song.mp3"}) {
      folder_.writeFile(text("files/") + text(name), bitmap());
      listing += entryLine(name);
    }
    folder_.writeFile(text("Files.txt"), listing);
    folder_.writeFile(text("Locations.txt"), "\"Files\",\"" + filesFolder().toLocal8Bit() + "\"\r\n");
    start(environmentThatNotesOpening());
  }

  QString filesFolder() const { return folder_.pathOf(text("files/")); }

 private:
  int farSongs_;
};

class ManyHitsWithFiles : public HitsWithFilesByKeys {
 protected:
  ManyHitsWithFiles() : HitsWithFilesByKeys(kMany) {}

  /// The picture, and all songs.
  Point allAreFound() const {
    return {"all are found",
            {text("ctrl+f"), text("'."), text("Return")},
            &KeyboardPoints::status,
            hits_ + text(" hits")};
  }
  Point areSelected(const char* what, int count, const QString& size) const {
    return {what,
            {},
            &KeyboardPoints::status,
            QStringLiteral("%1 hits  \u00B7  %2 selected, %3").arg(hits_).arg(count).arg(size)};
  }

  const QString hits_ = QLocale(QLocale::English, QLocale::UnitedStates).toString(kMany + 3);
};

TEST_F(ManyHitsWithFiles, AreSelectedSortedAndDraggedByTheMouse) {
  expectAll({allAreFound()});
  clickRow(0);
  expectAll({areSelected("a click selects", 1, text("1.00 kB"))});
  clickRow(2, text("shift"));
  expectAll({areSelected("a click with Shift selects up to there", 3, text("3.00 kB"))});
  clickRow(1, text("ctrl"));
  expectAll({areSelected("one with Ctrl takes out", 2, text("2.00 kB")),
             {"the paths of these are copied",
              {text("ctrl+shift+c")},
              &KeyboardPoints::copied,
              QStringLiteral("2: %1one song.mp3 ... %1two song.mp3").arg(filesFolder())}});
  clickFirstTitle();
  expectAll(
      {{"a click on a title sorts", {}, &KeyboardPoints::aboutList, text("Sorted by Match, ascending")}});
  clickFirstTitle();
  clickFirstTitle();
  expectAll({{"the third one is found order", {}, &KeyboardPoints::aboutList, QString()},
             {"the search text is emptied",
              {text("ctrl+f"), text("Delete")},
              &KeyboardPoints::searchText,
              QString()}});
  clickRow(2);
  expectAll({areSelected("another one is selected", 1, text("1.00 kB"))});
  dragRowToSearchText(2);
  expectAll({{"its path is where it was dropped",
              {},
              &KeyboardPoints::searchText,
              filesFolder() + text("two song.mp3")}});
}

TEST_F(ManyHitsWithFiles, AreQueuedAndShown) {
  expectAll({
      allAreFound(),
      {"the third one is handed to the audio player",
       {text("shift+Tab"), text("Home"), text("Down"), text("Down"), text("shift+F10"), text("Down"),
        text("Down"), text("Down"), text("Return")},
       &KeyboardPoints::queued,
       text("-e ") + filesFolder() + text("two song.mp3")},
      {"the second one is shown",
       {text("Up"), text("shift+F10"), text("Down"), text("Down"), text("Down"), text("Return")},
       &KeyboardPoints::shownPreview,
       text("Image Preview")},
  });
}

TEST_F(HitsWithFilesByKeys, APictureIsShownFromTheMenuOfItsHit) {
  expectAll({
      {"the picture is found",
       {text("ctrl+f"), text("'picture"), text("Return")},
       &KeyboardPoints::status,
       text("1 hit")},
      {"Preview Image is the third item of its menu",
       {text("shift+Tab"), text("Home"), text("shift+F10"), text("Down"), text("Down"), text("Down"),
        text("Return")},
       &KeyboardPoints::shownPreview,
       text("Image Preview")},
  });
}

TEST_F(HitsWithFilesByKeys, ASongIsQueuedFromTheMenuOfItsHit) {
  expectAll({
      {"the song is found",
       {text("ctrl+f"), text("'two"), text("Return")},
       &KeyboardPoints::firstRow,
       text("Match 100%, Volume Files, Folder ") + listedFolder(filesFolder(), nativePathStyle()) +
           text(", Name two song.mp3, Size 0.00mb, Date Jan, 15 04")},
      {"Enqueue is the third item of its menu",
       {text("shift+Tab"), text("Home"), text("shift+F10"), text("Down"), text("Down"), text("Down"),
        text("Return")},
       &KeyboardPoints::queued,
       text("-e ") + filesFolder() + text("two song.mp3")},
  });
}

TEST_F(HitsWithFilesByKeys, PathsOfSeveralAreCopied) {
  expectAll({
      {"all are found",
       {text("ctrl+f"), text("'song"), text("Return")},
       &KeyboardPoints::status,
       text("3 hits")},
      {"paths of two are copied",
       {text("shift+Tab"), text("Home"), text("shift+Down"), text("ctrl+shift+c")},
       &KeyboardPoints::copied,
       QStringLiteral("2: %1one song.mp3 ... %1two song.mp3").arg(filesFolder())},
      {"of one that is not here, the path in the catalogue is",
       {text("ctrl+a"), text("ctrl+shift+c")},
       &KeyboardPoints::copied,
       QStringLiteral("3: %1one song.mp3 ... DISK:\\Music\\far song.mp3").arg(filesFolder())},
      {"a message says so",
       {},
       &KeyboardPoints::frontLines,
       text(
           "graphic: Information\nlabel: 1 of 3 could not be found on a connected drive. For these, the path "
           "in the catalogue was copied.\npush button: OK")},
  });
}

TEST_F(HitsWithFilesByKeys, AHitIsDraggedToWhereTextCanBePut) {
  expectAll({
      {"the song is found",
       {text("ctrl+f"), text("'two"), text("Return")},
       &KeyboardPoints::status,
       text("1 hit")},
      {"the search text is emptied",
       {text("ctrl+f"), text("Delete")},
       &KeyboardPoints::searchText,
       QString()},
      {"the row is selected",
       {text("shift+Tab"), text("ctrl+a")},
       &KeyboardPoints::status,
       QStringLiteral("1 hit  \u00B7  1 selected, 1.00 kB")},
  });
  dragFirstRowToSearchText();
  expectAll({{"its path is where it was dropped",
              {},
              &KeyboardPoints::searchText,
              filesFolder() + text("two song.mp3")}});
}

}  // namespace

}  // namespace quorvin::test
