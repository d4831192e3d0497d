#include "editors/list_options_opener.h"

namespace quorvin {

ListOptionsOpener::ListOptionsOpener(const OptionsEditing& editing, QWidget* owner)
    : editing_(editing), owner_(owner) {}

void ListOptionsOpener::OptionsMenu_Click() {
  ListOptions dialog(editing_, owner_);
  shown_ = &dialog;
  dialog.exec();
}

void ListOptionsOpener::unload() {
  if (shown_) shown_->reject();
}

}  // namespace quorvin
