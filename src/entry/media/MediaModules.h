#pragma once

#include "platform/Images.h"
#include "platform/Videos.h"

// The libraries of pictures and of clips are large: each stands in a module of its own, loaded when
// the first file is read. What the entries give lives as long as the process. The program's folder
// is where it finds its helpers.
#define TARNLOFT_MODULE_ENTRY extern "C" __attribute__((visibility("default")))

TARNLOFT_MODULE_ENTRY tarnloft::Images* tarnloftImages(const QString& programFolder);
TARNLOFT_MODULE_ENTRY tarnloft::Videos* tarnloftVideos(const QString& programFolder);
