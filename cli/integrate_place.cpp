// SPDX-License-Identifier: MIT
#include "cli/integrate_place.h"

#include "integrator/menu_place.h"

namespace zev {

namespace {

constexpr const char* kRemovalOptions = "goes with pages, --no-backup, --dry-run and --report only";

std::string refuseNoPlace(const std::string& where) {
    return parsePlace(where)
               ? ""
               : "must be body-start, body-end, marker, or before, after, start, end or instead "
                 "with a colon and a tag's name, #ID, .CLASS or a tag's name with one of them";
}

}  // namespace

void addPlaceOptions(CLI::App& command, PlaceArguments& place, IntegrateOptions& options) {
    CLI::Option* const where =
        command
            .add_option("--place", place.where,
                        "Put the menu into the pages: body-start, body-end, marker (behind "
                        "<!-- zevmenu -->), or before:, after:, start:, end: or instead: with TAG, "
                        "#ID, .CLASS, TAG#ID or TAG.CLASS")
            ->type_name("WHERE")
            ->check(refuseNoPlace);
    command
        .add_flag("--without-script", options.hasLinkList,
                  "With it a list of the menu's links, for who has no script")
        ->needs(where);
    command.add_flag("--replace-references", options.replacesReferences,
                     "Correct the definition's address in code that was pasted into the pages");
    command
        .add_flag("--remove", place.isRemoval,
                  std::string("Take the menu out of the pages; ") + kRemovalOptions)
        ->excludes(where);
}

void takePlaceArguments(const PlaceArguments& place, IntegrateOptions& options) {
    options.place = parsePlace(place.where);
    if (place.isRemoval &&
        (!options.definition.empty() || !options.library.empty() || options.popup ||
         options.keepsOtherScripts || options.replacesReferences))
        throw CLI::ValidationError("--remove", kRemovalOptions);
}

}  // namespace zev
