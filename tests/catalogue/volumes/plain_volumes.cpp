// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/plain_volumes.h"

#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <algorithm>

namespace quorvin::test {

namespace {

class EntryMaker {
 public:
  explicit EntryMaker(unsigned seed) : random_(seed) {}

  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

  QString name() {
    static const QStringList names{u"harbour.mp3"_qs, u"Film.avi"_qs,   u"\u00C4rger.txt"_qs,  u" blank"_qs,
                                   u"x\ty"_qs,        u"\"q\", 'r'"_qs, u"\u4E2D\u6587.jpg"_qs};
    const QString one = names[below(static_cast<int>(names.size()))];
    return below(20) == 0 ? (one + u'-').repeated(40).left(65).trimmed() : QString::number(below(2000)) + one;
  }

  QString folder() {
    static const QStringList names{u"Music"_qs, u"Harbour"_qs, u"\u00DCbung"_qs, u"b c"_qs};
    QString path = u"\\"_qs;
    for (int depth = below(5); depth > 0; --depth)
      path += names[below(4)] + QString::number(below(4)) + u'\\';
    return path;
  }

  void addValues(VolumeEntry& entry) {
    const int kind = below(40);
    if (kind == 0) return;
    static const std::vector<std::int64_t> sizes{0, 999, 1'000'000'000, 4'294'967'296, 9'999'999'999'999};
    entry.size = kind < 6 ? sizes[static_cast<std::size_t>(below(5))] : below(100'000);
    if (kind == 6) entry.size = -1;
    // Few days, so that several files are of the same one; some are beyond 2038.
    entry.date = QDateTime(QDate(below(9) == 0 ? 2044 : 2004, 1 + below(2), 1 + below(28)),
                           QTime(below(3) * 4, 20 * below(2), 1 + below(2)), Qt::UTC);
    if (kind == 7) entry.date = QDateTime(QDate(1899, 12, 30), QTime(10, 20, 30), Qt::UTC);
  }

 private:
  std::mt19937 random_;
};

struct PlainSum {
  int listing;
  QString volume;
  std::int64_t entries = 0;
  std::int64_t withoutSize = 0;
  std::int64_t bytes = 0;
  const VolumeEntry* newest = nullptr;
};

bool isNewer(const VolumeEntry& entry, const VolumeEntry* newest) {
  if (entry.date.date() <= QDate(1899, 12, 30)) return false;
  return newest == nullptr || entry.date > newest->date;
}

}  // namespace

std::vector<VolumeEntry> madeUpEntries(unsigned seed, int listings, std::size_t count) {
  EntryMaker maker(seed);
  std::vector<VolumeEntry> entries;
  for (int listing = 0; listing < listings; ++listing) {
    const std::size_t end =
        count * static_cast<std::size_t>(listing + 1) / static_cast<std::size_t>(listings);
    while (entries.size() < end) {
      const QString volume = maker.below(9) == 0 ? QString() : u"Disk "_qs + QString::number(maker.below(4));
      const QString folder = maker.folder();
      for (int files = maker.below(30); files >= 0; --files) {
        entries.push_back({listing, volume, folder, maker.name()});
        maker.addValues(entries.back());
      }
    }
  }
  return entries;
}

std::vector<QByteArray> listingsOfEntries(const std::vector<VolumeEntry>& entries, int count) {
  std::vector<QByteArray> listings(static_cast<std::size_t>(count));
  const VolumeEntry* before = nullptr;
  for (const VolumeEntry& entry : entries) {
    QByteArray& listing = listings[static_cast<std::size_t>(entry.listing)];
    const bool isNew = before == nullptr || before->listing != entry.listing ||
                       before->volume != entry.volume || before->folder != entry.folder;
    if (isNew) listing += blockHead(entry.volume.toUtf8(), entry.folder.toUtf8());
    before = &entry;
    if (!entry.size) {
      listing += entry.name.toUtf8() + "\r\n";
      continue;
    }
    const bool hasDay = *entry.size >= 0 && entry.date.date() > QDate(1899, 12, 30);
    const QString date = entry.date.toString(hasDay ? u"yyyy-MM-dd HH:mm:ss"_qs : u"      HH:mm:ss      "_qs);
    listing += entry.name.leftJustified(65).toUtf8() + QByteArray::number(*entry.size).rightJustified(16) +
               " bytes " + date.toUtf8() + "\r\n";
  }
  return listings;
}

std::vector<std::string> plainVolumes(const std::vector<VolumeEntry>& entries) {
  std::vector<PlainSum> sums;
  for (const VolumeEntry& entry : entries) {
    auto sum = std::ranges::find_if(
        sums, [&](const PlainSum& s) { return s.listing == entry.listing && s.volume == entry.volume; });
    if (sum == sums.end()) sum = sums.insert(sum, {entry.listing, entry.volume});
    ++sum->entries;
    if (!entry.size || *entry.size < 0) {
      ++sum->withoutSize;
      continue;
    }
    sum->bytes += *entry.size;
    if (isNewer(entry, sum->newest)) sum->newest = &entry;
  }
  std::vector<std::string> lines;
  for (const PlainSum& sum : sums) {
    QString line = u"%1 %2: %3 entries, %4 without size, %5 bytes"_qs.arg(
        QString::number(sum.listing), sum.volume, QString::number(sum.entries),
        QString::number(sum.withoutSize), QString::number(sum.bytes));
    if (sum.newest != nullptr) {
      line += u", newest "_qs + sum.newest->date.toString(u"yyyy-MM-ddTHH:mm:ss"_qs) + u' ' +
              sum.newest->folder + u' ' + sum.newest->name;
    }
    lines.push_back(line.toStdString());
  }
  return lines;
}

}  // namespace quorvin::test
