// Message boxes on the screen.
#pragma once

#include "platform/message_box.h"

namespace quorvin {

/// Shows each message in a box of its own above the window in use, with the application title. A call
/// returns when the user has answered; events run meanwhile.
class WidgetMessageBoxes : public MessageBoxes {
 public:
  void inform(const QString& text) override;
  bool askYesNo(const QString& text) override;
  FaultAnswer askAbortRetryIgnore(const QString& text) override;
};

}  // namespace quorvin
