// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_export.h"
#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cstdio>

namespace quorvin {

namespace {

/// Where the hits go in the page.
constexpr char kHitsMark[] = "<!--HITS-->";
/// What the page says, where it has {{text}}.
constexpr std::array kPageTexts = {
    QT_TRANSLATE_NOOP("Texts", "en"),
    QT_TRANSLATE_NOOP("Texts", "Hits"),
    QT_TRANSLATE_NOOP("Texts", "Search in these hits:"),
    QT_TRANSLATE_NOOP("Texts", "%1 of %2 shown"),
    QT_TRANSLATE_NOOP("Texts", "Match"),
    QT_TRANSLATE_NOOP("Texts", "Volume"),
    QT_TRANSLATE_NOOP("Texts", "Folder"),
    QT_TRANSLATE_NOOP("Texts", "Name"),
    QT_TRANSLATE_NOOP("Texts", "Size"),
    QT_TRANSLATE_NOOP("Texts", "Date"),
    QT_TRANSLATE_NOOP("Texts", "From the listing of an online source"),
    QT_TRANSLATE_NOOP("Texts", "From the main data file"),
    QT_TRANSLATE_NOOP("Texts", "From an offline listing"),
    QT_TRANSLATE_NOOP("Texts", "No hit holds all of these words."),
    QT_TRANSLATE_NOOP("Texts", "This page shows its hits with a script of its own; please allow it to run."),
};
/// The page reads this many at once.
constexpr int kHitsInABlock = 1000;

std::string pageTemplate() {
  QFile file(QStringLiteral(":/quorvin/hits/hit_page.html"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QString page = QString::fromUtf8(file.readAll());
  for (const char* text : kPageTexts) {
    page.replace(QStringLiteral("{{%1}}").arg(QLatin1String(text)), Texts::tr(text).toHtmlEscaped());
  }
  return page.toStdString();
}

/// Appends a text of JSON. Nothing in it can be taken for a tag or the end of the script around it, and every
/// name there is comes back as it was, also one with half a character.
void addText(std::string& json, const QString& text) {
  json += '"';
  QString plain;
  const auto addPlain = [&] {
    json += plain.toStdString();
    plain.clear();
  };
  for (qsizetype at = 0; at < text.size(); ++at) {
    const QChar unit = text[at];
    const bool isPair = unit.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    if (isPair) {
      plain += unit;
      plain += text[++at];
      continue;
    }
    const bool isSign = QStringView(u"\"\\<>&\u2028\u2029\uFEFF").contains(unit);
    if (!isSign && !unit.isSurrogate() && unit >= u' ' && unit != u'\x7F') {
      plain += unit;
      continue;
    }
    addPlain();
    std::array<char, 8> escaped;
    std::snprintf(escaped.data(), escaped.size(), "\\u%04x", static_cast<unsigned>(unit.unicode()));
    json += escaped.data();
  }
  addPlain();
  json += '"';
}

void addNumber(std::string& json, double number) {
  json += QByteArray::number(number, 'g', 15).toStdString();
}

void replace(std::string& text, const std::string& mark, const std::string& by) {
  const std::size_t at = text.find(mark);
  if (at != std::string::npos) text.replace(at, mark.size(), by);
}

class ExportedPage : public ExportText {
 public:
  ExportedPage(const QLocale& locale, Qt::LayoutDirection direction) : locale_(locale) {
    std::string page = pageTemplate();
    replace(page, "{DIRECTION}", direction == Qt::RightToLeft ? "rtl" : "ltr");
    replace(page, "{LOCALE}", locale.bcp47Name().toStdString());
    const std::size_t at = page.find(kHitsMark);
    before_ = page.substr(0, at);
    after_ = page.substr(at + sizeof kHitsMark - 1);
  }

  void start(std::string& text) override { text += before_; }

  void add(std::string& text, const HitRow& row) override {
    text += hitsInBlock_ == 0 ? "<script type=\"application/json\">[\n" : ",\n";
    if (!isStarted_ || row.volume != volume_ || row.folder != folder_) addPlace(text, row);
    text += '[';
    text += std::to_string(static_cast<int>(row.kind)) + ',';
    text += std::to_string(row.match) + ',';
    addText(text, row.name);
    text += ',' + std::to_string(row.size) + ',';
    addText(text, hitText(row, HitColumn::Size, locale_));
    text += ',';
    addNumber(text, row.date);
    text += ',';
    addText(text, hitText(row, HitColumn::Date, locale_));
    text += ']';
    if (++hitsInBlock_ == kHitsInABlock) endBlock(text);
  }

  void end(std::string& text) override {
    endBlock(text);
    text += after_;
  }

 private:
  void addPlace(std::string& text, const HitRow& row) {
    isStarted_ = true;
    volume_ = row.volume;
    folder_ = row.folder;
    text += '[';
    addText(text, volume_);
    text += ',';
    addText(text, folder_);
    text += "],\n";
  }

  void endBlock(std::string& text) {
    if (hitsInBlock_ > 0) text += "\n]</script>\n";
    hitsInBlock_ = 0;
  }

  QLocale locale_;
  std::string before_;
  std::string after_;
  int hitsInBlock_ = 0;
  bool isStarted_ = false;
  QString volume_;
  QString folder_;
};

}  // namespace

std::unique_ptr<ExportText> makePageText(const QLocale& locale, Qt::LayoutDirection direction) {
  return std::make_unique<ExportedPage>(locale, direction);
}

}  // namespace quorvin
