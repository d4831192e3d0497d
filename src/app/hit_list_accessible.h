// The hit list as assistive technology sees it.
#pragma once

namespace quorvin {

/// Makes every HitListView from now on known to assistive technology as a list whose items are the rows: an
/// item's name is the row's columns with their titles, its description the kind of source. May be called any
/// number of times.
void installHitListAccessible();

}  // namespace quorvin
