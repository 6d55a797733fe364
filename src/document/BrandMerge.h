#pragma once

#include "model/Brand.h"

namespace tarnloft {

// Does the step from one brand to another again, on the brand as it is now: `to` itself if that is
// `from` but for the time of its save, else what is now there with the difference of the two. What
// the step didn't touch stays as it is now, and so does what was changed since. Undo hands in a
// step's two values the other way round.
//
// Nothing is lost: an item goes only if it stands in `from` and not in `to`. A section that would
// go stays while it holds items of others or was renamed since, and one that is gone comes back for
// an item that returns to it. Ids are distinct within each brand, as in a document's
// (`withDistinctIDs`).
Brand reapplied(const Brand& from, const Brand& to, const Brand& present);

}  // namespace tarnloft
