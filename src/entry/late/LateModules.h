#pragma once

#include <QString>

namespace tarnloft {
class Archiver;
class ClipPlayers;
class Images;
class SoundOutputs;
class Trash;
class Videos;
}  // namespace tarnloft

// The libraries of pictures, clips, sound, archives and the trash are large: each stands in a
// module of its own, loaded at the first use. What the entries give lives as long as the process.
// A module's folder is where it finds its helpers.
#define TARNLOFT_MODULE_ENTRY extern "C" __attribute__((visibility("default")))

TARNLOFT_MODULE_ENTRY tarnloft::Archiver* tarnloftArchiver(const QString& moduleFolder);
TARNLOFT_MODULE_ENTRY tarnloft::ClipPlayers* tarnloftClipPlayers(const QString& moduleFolder);
TARNLOFT_MODULE_ENTRY tarnloft::Images* tarnloftImages(const QString& moduleFolder);
TARNLOFT_MODULE_ENTRY tarnloft::SoundOutputs* tarnloftSounds(const QString& moduleFolder);
TARNLOFT_MODULE_ENTRY tarnloft::Trash* tarnloftTrash(const QString& moduleFolder);
TARNLOFT_MODULE_ENTRY tarnloft::Videos* tarnloftVideos(const QString& moduleFolder);
