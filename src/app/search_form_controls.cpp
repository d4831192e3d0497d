#include "app/search_form_controls.h"

#include <QStyleOptionFrame>

namespace quorvin {

namespace {

constexpr char16_t kInitialMatch[] = u"50";

QLabel* makeCaption(QWidget* parent, const QString& text, QWidget* buddy) {
  auto* label = new QLabel(text, parent);
  label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  label->setBuddy(buddy);
  return label;
}

/// A label that is written often: plain text needs no look at what it holds.
QLabel* makeValue(QWidget* parent, const QString& name, const QString& text, const QString& meaning) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setText(text);
  label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  label->setAccessibleDescription(meaning);
  return label;
}

EdgeLineEdit* makeSearchStr(QWidget* parent) {
  auto* edit = new EdgeLineEdit(parent);
  edit->setObjectName(QStringLiteral("SearchStr"));
  edit->setAccessibleName(QStringLiteral("Search text"));
  edit->setPlaceholderText(QStringLiteral("Words of the name or folder, for example: rock live"));
  return edit;
}

QLineEdit* makeDesMatch(QWidget* parent) {
  const QString meaning = QStringLiteral("Entries that hold more than this share of the words are shown");
  auto* edit = new QLineEdit(QString::fromUtf16(kInitialMatch), parent);
  edit->setObjectName(QStringLiteral("DesMatch"));
  edit->setAccessibleName(QStringLiteral("Desired match in percent"));
  edit->setAccessibleDescription(meaning);
  edit->setToolTip(meaning);
  return edit;
}

QPushButton* makeButton(QWidget* parent, const QString& name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  return button;
}

}  // namespace

void EdgeLineEdit::setEdgeMargin(int pixels) {
  edgeMargin_ = pixels;
  update();
}

void EdgeLineEdit::initStyleOption(QStyleOptionFrame* option) const {
  QLineEdit::initStyleOption(option);
  if (option) option->rect.setRight(option->rect.right() - edgeMargin_);
}

SearchFormControls makeControls(QWidget* parent) {
  SearchFormControls made{};
  made.MenuLine = new QFrame(parent);
  made.MenuLine->setObjectName(QStringLiteral("MenuLine"));
  made.MenuLine->setAccessibleName(QStringLiteral("Line below the menu"));
  made.MenuLine->setFrameStyle(QFrame::HLine | QFrame::Sunken);

  // In tab order.
  made.SearchStr = makeSearchStr(parent);
  made.DesMatch = makeDesMatch(parent);
  made.Find = makeButton(parent, QStringLiteral("Find"), QStringLiteral("Find"));
  made.Find->setDefault(true);
  made.WebUpdate = makeButton(parent, QStringLiteral("WebUpdate"), QStringLiteral("Web Update?"));
  made.WebUpdate->setEnabled(false);
  made.HitList = new HitListView(parent);
  made.HitList->setObjectName(QStringLiteral("HitList"));
  made.HitList->setAccessibleName(QStringLiteral("Hits"));

  made.searchLabel = makeCaption(parent, QStringLiteral("&Search for:"), made.SearchStr);
  made.matchLabel = makeCaption(parent, QStringLiteral("&Match %:"), made.DesMatch);
  made.lblFound = makeValue(parent, QStringLiteral("lblFound"), QStringLiteral("0"),
                            QStringLiteral("Number of entries found"));
  made.lblSearched = makeValue(parent, QStringLiteral("lblSearched"), QStringLiteral("0"),
                               QStringLiteral("Number of entries searched"));
  // Screen readers read a caption before what it belongs to, a bare number otherwise.
  made.foundLabel = makeCaption(parent, QStringLiteral("Found:"), made.lblFound);
  made.searchedLabel = makeCaption(parent, QStringLiteral("Searched:"), made.lblSearched);
  made.lblVer = makeValue(parent, QStringLiteral("lblVer"), QString(), QStringLiteral("Program version"));
  made.lblVer->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  made.lblVer->setForegroundRole(QPalette::PlaceholderText);
  return made;
}

}  // namespace quorvin
