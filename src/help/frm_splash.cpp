// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/frm_splash.h"

#include "platform/screen_room.h"
#include "texts/texts.h"

#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvin {

namespace {

constexpr char16_t kPlatforms[] = u"Windows 9x, NT, 2000, XP, Vista";
constexpr char kLicence[] =
    QT_TRANSLATE_NOOP("Texts", "Free software under the GNU General Public License, version 2 or later");

/// How much larger than other texts the product's name is written.
constexpr double kNameScale = 1.8;

QFont enlarged(QFont font, double scale) {
  font.setBold(true);
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * scale);
  } else {
    font.setPixelSize(static_cast<int>(font.pixelSize() * scale));
  }
  return font;
}

QLabel* withText(QLabel* label, const QString& text) {
  label->setText(text);
  return label;
}

/// The height of the logo in lines of text.
constexpr int kLogoLines = 8;

}  // namespace

frmSplash::frmSplash(const ProductFacts& facts, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmSplash"));
  setWindowTitle(Texts::tr("About %1").arg(facts.productName));
  setModal(true);
  lblProductName_ = addLabel(QStringLiteral("lblProductName"));
  lblProductName_->setFont(enlarged(font(), kNameScale));
  lblVersion_ = addLabel(QStringLiteral("lblVersion"));
  AppDesc_ = addLabel(QStringLiteral("AppDesc"));
  lblPlatform_ = withText(addLabel(QStringLiteral("lblPlatform")), QString::fromUtf16(kPlatforms));
  lblSystem_ = addLabel(QStringLiteral("lblSystem"));
  lblLicence_ = withText(addLabel(QStringLiteral("lblLicence")), Texts::tr(kLicence));

  imgLogo_ = new LogoPicture(this);
  imgLogo_->setObjectName(QStringLiteral("imgLogo"));
  imgLogo_->setAccessibleName(Texts::tr("Logo: a lens over a list"));

  Command1_ = new QPushButton(Texts::tr("&Close"), this);
  Command1_->setObjectName(QStringLiteral("Command1"));
  Command1_->setDefault(true);
  Command1_->setFocus();
  connect(Command1_, &QPushButton::clicked, this, &QDialog::accept);

  layOut();
  Form_Load(facts);
}

QLabel* frmSplash::addLabel(const QString& name) {
  auto* label = new QLabel(this);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  // The version is often wanted in a report.
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

void frmSplash::layOut() {
  const int line = fontMetrics().height();
  auto* texts = new QVBoxLayout;
  texts->addWidget(lblProductName_);
  texts->addWidget(lblVersion_);
  texts->addSpacing(line / 2);
  texts->addWidget(AppDesc_);
  texts->addWidget(lblPlatform_);
  texts->addWidget(lblSystem_);
  texts->addWidget(lblLicence_);
  texts->addStretch();

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(line, line, line, line);
  grid->setHorizontalSpacing(line * 3 / 2);
  grid->setVerticalSpacing(line);
  grid->addWidget(imgLogo_, 0, 0, Qt::AlignTop);
  grid->addLayout(texts, 0, 1);
  grid->addWidget(Command1_, 1, 0, 1, 2, Qt::AlignRight);
  grid->setSizeConstraint(QLayout::SetFixedSize);
}

void frmSplash::Form_Load(const ProductFacts& facts) {
  lblVersion_->setText(
      Texts::tr("Version %1.%2.%3").arg(facts.majorVersion).arg(facts.minorVersion).arg(facts.revision));
  lblProductName_->setText(facts.productName);
  AppDesc_->setText(facts.description);
  if (!facts.system.isEmpty()) lblSystem_->setText(Texts::tr("Runs on %1").arg(facts.system));
  lblSystem_->setVisible(!facts.system.isEmpty());
  wrapWideLabels();
}

/// With large letters a line may be wider than the screen.
void frmSplash::wrapWideLabels() {
  const int line = fontMetrics().height();
  const int besideTexts = imgLogo_->sizeHint().width() + line * 9 / 2;
  const int most = std::max(line * 8, largestInside(*screen()).width() - besideTexts);
  for (QLabel* label : {lblProductName_, lblVersion_, AppDesc_, lblPlatform_, lblSystem_, lblLicence_}) {
    if (label->sizeHint().width() <= most) continue;
    label->setWordWrap(true);
    label->setFixedWidth(most);
    label->setMinimumHeight(label->heightForWidth(most));
  }
}

LogoPicture::LogoPicture(QWidget* parent)
    : QWidget(parent), drawing_(QStringLiteral(":/quorvin/help/quorvin.svg")) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize LogoPicture::sizeHint() const {
  const int side = std::min(fontMetrics().height() * kLogoLines, screen()->availableGeometry().width() / 4);
  return {side, side};
}

void LogoPicture::paintEvent(QPaintEvent*) {
  const int side = std::min(width(), height());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QRectF square(0, 0, side, side);
  square.moveCenter(QRectF(rect()).center());
  drawing_.render(&painter, square);
}

}  // namespace quorvin
