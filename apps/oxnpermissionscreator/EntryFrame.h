// The frame of the program's entry function: what it sets up, in which order,
// and the one handler through which every failure leaves the program.
#pragma once

#include <functional>

namespace app {

inline constexpr int exitSuccess = 0;
inline constexpr int exitFailure = 1;

inline constexpr const char* applicationName = "oxnpermissionscreator";
inline constexpr const char* displayVersion = "7.19.0 (r13)";
inline constexpr const char* numericVersion = "7.19.0.13";

/// Runs `body` inside the one handler: a plat::Exception that escapes it is
/// logged at level 0 on source "oxnpermissionscreator" and gives exitFailure.
/// Other exceptions are not caught here.
int runGuarded(const std::function<int()>& body);

/// The start-up before the toolkit, in order: the argument vector, the
/// product version, product initialisation (with file logging and the stored
/// configuration), the command line (help ends the process there) and the
/// feature permissions. Raises what goes wrong.
void startUp(int argc, char** argv);

/// The toolkit's part, in order: the platform's application object, the
/// application loop, the toolkit's root with its element factories, the
/// dialog, opened; the loop runs until the dialog is closed; then the dialog
/// and the loop go. Returns exitSuccess.
int runDialog();

/// The whole program: start-up and run, inside the handler. Returns the exit code.
int runProgram(int argc, char** argv);

} // namespace app
