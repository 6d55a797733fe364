#pragma once

namespace tarnloft {
class Archiver;
class ClipPlayers;
class SoundOutputs;
class Trash;
}  // namespace tarnloft

// The libraries of clips that play, sound, archives and the trash are large: each stands in a
// module of its own, loaded at the first use. What the entries give lives as long as the process.
#define TARNLOFT_MODULE_ENTRY extern "C" __attribute__((visibility("default")))

TARNLOFT_MODULE_ENTRY tarnloft::Archiver* tarnloftArchiver();
TARNLOFT_MODULE_ENTRY tarnloft::ClipPlayers* tarnloftClipPlayers();
TARNLOFT_MODULE_ENTRY tarnloft::SoundOutputs* tarnloftSounds();
TARNLOFT_MODULE_ENTRY tarnloft::Trash* tarnloftTrash();
