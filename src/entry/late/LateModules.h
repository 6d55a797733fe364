#pragma once

#include <QString>

namespace tarnloft {
class Archiver;
class ClipPlayers;
class SoundOutputs;
class Trash;
}  // namespace tarnloft

// The libraries of clips that play, sound, archives and the trash are large: each stands in a
// module of its own, loaded at the first use. What the entries give lives as long as the process.
// The program's folder is where it finds its helpers.
#define TARNLOFT_MODULE_ENTRY extern "C" __attribute__((visibility("default")))

TARNLOFT_MODULE_ENTRY tarnloft::Archiver* tarnloftArchiver(const QString& programFolder);
TARNLOFT_MODULE_ENTRY tarnloft::ClipPlayers* tarnloftClipPlayers(const QString& programFolder);
TARNLOFT_MODULE_ENTRY tarnloft::SoundOutputs* tarnloftSounds(const QString& programFolder);
TARNLOFT_MODULE_ENTRY tarnloft::Trash* tarnloftTrash(const QString& programFolder);
