#pragma once

namespace tarnloft::decoding {

// Becomes the font sanitizer that browsers use, shut in: it rewrites the font on standard input
// into the memory at `outputNumber`. Returns, with a failure, only if it can't.
int sanitize();

}  // namespace tarnloft::decoding
