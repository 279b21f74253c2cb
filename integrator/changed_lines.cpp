// SPDX-License-Identifier: MIT
#include "integrator/changed_lines.h"

#include <algorithm>

#include "integrator/page_note.h"
#include "text/pattern.h"

namespace zev {

namespace {

constexpr std::string_view kLineEnds = "\r\n";
constexpr std::string_view kEllipsis = "...";

std::size_t lineStart(std::string_view page, std::size_t offset) {
    const std::size_t end =
        offset == 0 ? std::string_view::npos : page.find_last_of(kLineEnds, offset - 1);
    return end == std::string_view::npos ? 0 : end + 1;
}

std::size_t lineEnd(std::string_view page, std::size_t offset) {
    return std::min(page.find_first_of(kLineEnds, offset), page.size());
}

/// Neighbouring edits that lie in the same lines, and those lines.
struct Region {
    std::size_t begin;
    std::size_t end;
    std::vector<PageEdit> edits;
};

std::vector<Region> regionsOf(std::string_view page, const std::vector<PageEdit>& edits) {
    std::vector<Region> regions;
    for (const PageEdit& edit : edits) {
        const std::size_t begin = lineStart(page, edit.offset);
        const std::size_t end = lineEnd(page, edit.offset + edit.length);
        if (regions.empty() || begin >= regions.back().end + 1)
            regions.push_back({begin, end, {}});
        regions.back().end = std::max(regions.back().end, end);
        regions.back().edits.push_back(edit);
    }
    return regions;
}

/// Leaves of long unchanged text before and behind the edits what is next to them.
ChangedLines shownPart(std::string_view page, const Region& region, std::size_t maxBytes) {
    const std::size_t firstEdit = region.edits.front().offset;
    const std::size_t lastEdit = region.edits.back().offset + region.edits.back().length;
    const std::size_t side = maxBytes / 2;
    const bool isCutBefore = firstEdit - region.begin > side;
    const bool isCutBehind = region.end - lastEdit > side;
    const std::size_t begin = isCutBefore ? firstEdit - side : region.begin;
    const std::size_t end = isCutBehind ? lastEdit + side : region.end;
    std::vector<PageEdit> edits = region.edits;
    for (PageEdit& edit : edits)
        edit.offset -= begin;
    const std::string_view part = page.substr(begin, end - begin);
    const auto shown = [&](std::string text) {
        text = replaceAll(replaceAll(text, "\r\n", "\n"), "\r", "\n");
        return std::string(isCutBefore ? kEllipsis : "") + text +
               std::string(isCutBehind ? kEllipsis : "");
    };
    return {0, shown(std::string(part)), shown(withEdits(part, edits))};
}

}  // namespace

std::vector<ChangedLines> changedLines(std::string_view page, const std::vector<PageEdit>& edits,
                                       std::size_t maxBytes) {
    std::vector<ChangedLines> changes;
    LineCounter lines(page);
    for (const Region& region : regionsOf(page, edits)) {
        changes.push_back(shownPart(page, region, maxBytes));
        changes.back().line = lines.lineAt(region.begin);
    }
    return changes;
}

}  // namespace zev
