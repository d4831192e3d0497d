#include "catalogue/job_controls.h"

#include "texts/texts.h"

#include <algorithm>

namespace quorvin {

QString stopCaption() {
  return Texts::tr("S&top");
}

QPushButton* makeStartButton(const QString& caption) {
  auto* button = new QPushButton(stopCaption());
  const int width = button->sizeHint().width();
  button->setText(caption);
  button->setMinimumWidth(std::max(width, button->sizeHint().width()));
  return button;
}

QLabel* captionOf(QWidget* control, const QString& text) {
  auto* caption = new QLabel(text);
  caption->setBuddy(control);
  return caption;
}

}  // namespace quorvin
