// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "cli/integrator_commands.h"

namespace zev {

/// The arguments of `integrate` that place a menu in pages or take it out again.
struct PlaceArguments {
    std::string where;
    bool isRemoval = false;
};

/// Values are stored in `place` and `options`, which live as long as the command.
void addPlaceOptions(CLI::App& command, PlaceArguments& place, IntegrateOptions& options);

/// Once the arguments are taken apart. Throws CLI::ParseError when they do not go together.
void takePlaceArguments(const PlaceArguments& place, IntegrateOptions& options);

}  // namespace zev
