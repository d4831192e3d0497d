#include "preview/img_pre_loading.h"

#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace quorvin {

namespace {

constexpr int kMillisecondsUnseen = 500;

}  // namespace

ImgPreLoading::ImgPreLoading(const QString& path, QWidget* parent) : QProgressDialog(parent) {
  setObjectName(QStringLiteral("ImgPreLoading"));
  setWindowTitle(QStringLiteral("Image Preview"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  auto* text = new QLabel;
  text->setObjectName(QStringLiteral("Status"));
  text->setTextFormat(Qt::PlainText);
  setLabel(text);
  setLabelText(QStringLiteral("Loading %1...").arg(QFileInfo(path).fileName()));
  auto* bar = new QProgressBar;
  bar->setObjectName(QStringLiteral("bar"));
  bar->setAccessibleName(QStringLiteral("Progress"));
  bar->setTextVisible(false);
  setBar(bar);
  auto* cancel = new QPushButton(QStringLiteral("Cancel"));
  cancel->setObjectName(QStringLiteral("CancelButton"));
  // The toolkit's own button would leave its Esc behind, and two of them do nothing.
  setCancelButton(nullptr);
  setCancelButton(cancel);
  setRange(0, 0);
  setMinimumDuration(kMillisecondsUnseen);
  // The time begins with the first value.
  setValue(0);
}

}  // namespace quorvin
