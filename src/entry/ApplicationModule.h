#pragma once

// What needs the interface's and the pictures' libraries stands in a module of its own, so that the
// quick modes start without loading them. The module has these entries; the program finds them by
// name. Each makes its own application object.
extern "C" {
using TarnLoftEntry = int (*)(int argc, char** argv);

// Runs the self-test; gives the process's exit status.
__attribute__((visibility("default"))) int tarnloftSelfTest(int argc, char** argv);
// Runs the window application; gives the process's exit status.
__attribute__((visibility("default"))) int tarnloftApplication(int argc, char** argv);
}
