#include "platform/desktop/decoding/worker/FileDecoder.h"

tarnloft::decoding::FileDecoder* tarnloftDecoder() { return &tarnloft::decoding::moduleDecoder(); }
