// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_properties.h"

#include "platform/screen_room.h"
#include "texts/texts.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QStringList>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvin {

namespace {

constexpr char kLineLabel[] = QT_TRANSLATE_NOOP("Texts", "Line in the listing");
constexpr int kValueCharacters = 64;
/// As long as events may be held up.
constexpr qint64 kMillisecondsOfReading = 8;

/// On a small screen, or with large letters, there may be more rows than there is room for.
QScrollArea* makeScrolling(QFormLayout* rows) {
  auto* inner = new QWidget;
  rows->setContentsMargins(0, 0, 0, 0);
  inner->setLayout(rows);
  auto* area = new QScrollArea;
  area->setObjectName(QStringLiteral("Values"));
  area->setAccessibleName(Texts::tr("Values"));
  area->verticalScrollBar()->setAccessibleName(Texts::tr("Scroll the values"));
  area->setWidget(inner);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setFocusPolicy(Qt::NoFocus);
  return area;
}

/// So that each value is seen whole, where a window `most` wide has room for it beside the labels: the end
/// may be what tells a path from others.
int widthOfValues(const std::vector<HitFact>& facts, const QFontMetrics& metrics, int most) {
  int values = metrics.averageCharWidth() * kValueCharacters;
  int labels = metrics.horizontalAdvance(Texts::tr(kLineLabel));
  for (const HitFact& fact : facts) {
    values = std::max(values, metrics.horizontalAdvance(fact.value) + metrics.height());
    labels = std::max(labels, metrics.horizontalAdvance(fact.label));
  }
  constexpr int kHeightsAround = 5;
  return std::min(values, most - labels - kHeightsAround * metrics.height());
}

}  // namespace

HitProperties::HitProperties(const KnownHit& hit, const QLocale& locale, QWidget* parent)
    : QDialog(parent), locale_(locale), finder_(hit.listing, hit.row) {
  setObjectName(QStringLiteral("HitProperties"));
  setWindowTitle(Texts::tr("Properties of %1").arg(hit.row.name));

  const QSize most = largestInside(*screen());
  const std::vector<HitFact> facts = factsOf(hit, locale);
  leastValueWidth_ = widthOfValues(facts, fontMetrics(), most.width());
  auto* rows = new QFormLayout;
  rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  for (const HitFact& fact : facts) {
    addRow(rows, fact);
    if (fact.name != u"Listing") continue;
    line_ = addRow(rows, {QStringLiteral("Line"), Texts::tr(kLineLabel), Texts::tr("Being looked for...")});
  }

  auto* copy = new QPushButton(Texts::tr("C&opy All"), this);
  copy->setObjectName(QStringLiteral("CopyAll"));
  copy->setAutoDefault(false);
  auto* close = new QPushButton(Texts::tr("&Close"), this);
  close->setObjectName(QStringLiteral("CloseButton"));
  close->setDefault(true);
  connect(copy, &QPushButton::clicked, this, &HitProperties::Copy_Click);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(copy);
  buttons->addStretch();
  buttons->addWidget(close);
  auto* whole = new QVBoxLayout(this);
  QScrollArea* values = makeScrolling(rows);
  whole->addWidget(values);
  whole->addSpacing(fontMetrics().height() / 2);
  whole->addLayout(buttons);
  close->setFocus();
  const QSize inner = values->widget()->sizeHint();
  const QSize wanted = sizeHint() - values->sizeHint() + inner;
  const bool scrolls = wanted.height() > most.height();
  const int bar = scrolls ? values->verticalScrollBar()->sizeHint().width() : 0;
  values->setMinimumWidth(inner.width() + bar);
  resize((wanted + QSize(bar, 0)).boundedTo(most));

  connect(&reading_, &QTimer::timeout, this, &HitProperties::readOn);
  reading_.start(0);
}

QLineEdit* HitProperties::addRow(QFormLayout* rows, const HitFact& fact) {
  auto* value = new QLineEdit(fact.value, this);
  value->setObjectName(fact.name);
  value->setAccessibleName(fact.label);
  value->setReadOnly(true);
  value->setFrame(false);
  value->setToolTip(fact.value.toHtmlEscaped());
  // A value, not a box to fill in.
  QPalette palette = value->palette();
  palette.setColor(QPalette::Base, palette.color(QPalette::Window));
  palette.setColor(QPalette::Text, palette.color(QPalette::WindowText));
  value->setPalette(palette);
  value->setMinimumWidth(leastValueWidth_);
  value->setCursorPosition(0);
  auto* label = new QLabel(fact.label + u':', this);
  label->setBuddy(value);
  rows->addRow(label, value);
  values_.push_back(value);
  return value;
}

void HitProperties::readOn() {
  QElapsedTimer sinceStart;
  sinceStart.start();
  while (!sinceStart.hasExpired(kMillisecondsOfReading)) {
    if (finder_.step()) continue;
    reading_.stop();
    showLine();
    return;
  }
}

void HitProperties::showLine() {
  const std::optional<std::int64_t> line = finder_.line();
  line_->setText(line ? locale_.toString(*line) : Texts::tr("Not in the listing any more"));
  line_->setToolTip(line_->text());
}

void HitProperties::Copy_Click() {
  QStringList lines;
  for (const QLineEdit* value : values_)
    lines.append(value->accessibleName() + QStringLiteral(": ") + value->text());
  QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

}  // namespace quorvin
