#include "help/address_list.h"

namespace quorvin {

void AddressList::visit(const QString& address) {
  addresses_.removeOne(address);
  addresses_.prepend(address);
}

}  // namespace quorvin
