#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace zev {

/// Full path of the program that runs; empty when the system does not tell.
std::string runningProgram();

/// Full path of a program: `name` itself when it holds a "/", else the first match in PATH. Empty
/// when there is no such executable file.
std::string findProgram(const std::string& name);

/// Runs a program without a shell and returns what it wrote to its standard output. Nothing when it
/// cannot be started, ends with another status than 0, or is not done within `timeLimit`, after
/// which it and its children are killed. `arguments` begin with the program.
std::optional<std::string> runProgram(const std::vector<std::string>& arguments,
                                      std::chrono::milliseconds timeLimit);

/// Starts a program that goes on by itself: in a session of its own, without our input and output,
/// forgotten when it ends. False when it cannot be executed. `arguments` begin with the program.
bool startDetached(const std::vector<std::string>& arguments);

}  // namespace zev
