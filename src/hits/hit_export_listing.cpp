// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/general_date.h"
#include "hits/hit_export.h"
#include "platform/text_encoding.h"
#include "search/format/listing_line.h"

#include <algorithm>

namespace quorvin {

namespace {

/// The digit of a very large size that ends the entry text is in the last of its columns; the others are the
/// name's.
constexpr qsizetype kFreeColumns = kEntryColumns - 1;
constexpr qsizetype kLongestFreeSize = kSizeWidth - 1;
constexpr char kLineEnd[] = "\r\n";

qsizetype characters(const QString& text) {
  return std::ranges::count_if(text, [](QChar unit) { return !unit.isLowSurrogate(); });
}

std::string bytesOf(const QString& text) {
  return encodeSystemText(text).toStdString();
}

QString padded(const QString& text, qsizetype columns) {
  return text + QString(std::max<qsizetype>(0, columns - characters(text)), u' ');
}

/// A size in thirteen columns that begins with `first`, the character that it shares with the entry text;
/// empty where there is none.
QString sharedSize(std::int64_t size, QChar first) {
  const QString digits = QString::number(size);
  const QString grouped = QLocale(QLocale::English, QLocale::UnitedStates).toString(size);
  for (const QString& text : {grouped, digits}) {
    if (text.size() == kSizeWidth && text.front() == first) return text;
  }
  return {};
}

/// In a form that is read the same in every locale.
QString dateText(DateValue date) {
  return dateTimeOf(date).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

class ExportedListing : public ExportText {
 public:
  void start(std::string&) override {}
  void add(std::string& text, const HitRow& row) override {
    if (!isStarted_ || row.volume != volume_ || row.folder != folder_) startBlock(text, row);
    text += bytesOf(entryLine(row)) + kLineEnd;
  }
  void end(std::string&) override {}

 private:
  void startBlock(std::string& text, const HitRow& row) {
    isStarted_ = true;
    volume_ = row.volume;
    folder_ = row.folder;
    text += kLineEnd + ("Volume:    " + bytesOf(volume_)) + kLineEnd;
    text += "Directory: " + bytesOf(folder_) + kLineEnd + kLineEnd;
  }

  static QString entryLine(const HitRow& row) {
    QString name = row.name;
    while (name.endsWith(u' ')) name.chop(1);
    const QString rest = QStringLiteral(" bytes ") + dateText(row.date);
    if (characters(name) <= kFreeColumns) {
      // Without signs between the thousands most sizes leave the shared column free.
      const QString size = QString::number(row.size);
      const QString inColumns = size.size() > kLongestFreeSize ? size.left(kSizeWidth) : size;
      return padded(name, kEntryColumns + kSizeWidth - 1 - inColumns.size()) + inColumns + rest;
    }
    const QString size = sharedSize(row.size, name.back());
    // A name that fills the shared column leaves no room for a size that does not begin with it. The line is
    // the name alone then, and a search shows the values of the hit before.
    return size.isEmpty() ? name : name.chopped(1) + size + rest;
  }

  bool isStarted_ = false;
  QString volume_;
  QString folder_;
};

}  // namespace

std::unique_ptr<ExportText> makeListingText() {
  return std::make_unique<ExportedListing>();
}

}  // namespace quorvin
