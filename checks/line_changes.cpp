// SPDX-License-Identifier: MIT
#include "checks/line_changes.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "checks/longest_increasing.h"
#include "script/definition_lines.h"

namespace zev {

namespace {

using Lines = std::vector<std::string_view>;

Lines linesOf(DefinitionLines& source) {
    Lines lines;
    std::string_view line;
    while (source.next(line))
        lines.push_back(line);
    return lines;
}

/// Offsets of lines that are still to be compared with one another.
struct Gap {
    std::size_t oldBegin;
    std::size_t oldEnd;
    std::size_t newBegin;
    std::size_t newEnd;
};

/// Holds on to the lines that both texts have once, as far as they are in the same order, and goes
/// on between them: lines that are everywhere, such as empty ones, then find their place.
class LineComparison {
  public:
    LineComparison(const Lines& oldLines, const Lines& newLines)
        : m_old(oldLines), m_new(newLines) {}

    std::vector<LineChange> compare() {
        m_gaps.push_back({0, m_old.size(), 0, m_new.size()});
        while (!m_gaps.empty()) {
            const Gap gap = withoutEqualEnds(m_gaps.back());
            m_gaps.pop_back();
            if (!split(gap))
                tell(gap);
        }
        return std::move(m_changes);
    }

  private:
    Gap withoutEqualEnds(Gap gap) const {
        const auto isEmpty = [&] {
            return gap.oldBegin == gap.oldEnd || gap.newBegin == gap.newEnd;
        };
        for (; !isEmpty() && m_old[gap.oldBegin] == m_new[gap.newBegin]; ++gap.newBegin)
            ++gap.oldBegin;
        for (; !isEmpty() && m_old[gap.oldEnd - 1] == m_new[gap.newEnd - 1]; --gap.newEnd)
            --gap.oldEnd;
        return gap;
    }

    /// The lines that both sides have once: offsets in the old and in the new text, in the new
    /// order.
    std::vector<std::pair<std::size_t, std::size_t>> commonLines(const Gap& gap) const {
        struct Places {
            std::size_t oldCount = 0;
            std::size_t newCount = 0;
            std::size_t oldAt = 0;
        };
        std::unordered_map<std::string_view, Places> places;
        for (std::size_t at = gap.oldBegin; at < gap.oldEnd; ++at) {
            Places& place = places[m_old[at]];
            ++place.oldCount;
            place.oldAt = at;
        }
        for (std::size_t at = gap.newBegin; at < gap.newEnd; ++at)
            ++places[m_new[at]].newCount;
        std::vector<std::pair<std::size_t, std::size_t>> common;
        for (std::size_t at = gap.newBegin; at < gap.newEnd; ++at) {
            const Places& place = places[m_new[at]];
            if (place.oldCount == 1 && place.newCount == 1)
                common.emplace_back(place.oldAt, at);
        }
        return common;
    }

    /// False when nothing in the gap is the same on both sides.
    bool split(const Gap& gap) {
        const auto common = commonLines(gap);
        std::vector<std::size_t> oldOffsets;
        for (const auto& [oldAt, newAt] : common)
            oldOffsets.push_back(oldAt);
        const std::vector<bool> isHeld = longestIncreasing(oldOffsets);
        Gap rest = gap;
        // The first gap comes to lie on top.
        for (std::size_t i = common.size(); i-- > 0;) {
            if (!isHeld[i])
                continue;
            m_gaps.push_back({common[i].first + 1, rest.oldEnd, common[i].second + 1, rest.newEnd});
            rest.oldEnd = common[i].first;
            rest.newEnd = common[i].second;
        }
        if (!common.empty())
            m_gaps.push_back(rest);
        return !common.empty();
    }

    void tell(const Gap& gap) {
        std::size_t oldAt = gap.oldBegin;
        std::size_t newAt = gap.newBegin;
        while (oldAt < gap.oldEnd || newAt < gap.newEnd) {
            LineChange change{oldAt + 1, {}, {}};
            if (oldAt < gap.oldEnd)
                change.oldText = m_old[oldAt++];
            if (newAt < gap.newEnd)
                change.newText = m_new[newAt++];
            m_changes.push_back(std::move(change));
        }
    }

    const Lines& m_old;
    const Lines& m_new;
    std::vector<Gap> m_gaps;
    std::vector<LineChange> m_changes;
};

}  // namespace

std::vector<LineChange> changedLines(std::string oldBytes, std::string newBytes) {
    DefinitionLines oldSource(std::move(oldBytes));
    DefinitionLines newSource(std::move(newBytes));
    const Lines oldLines = linesOf(oldSource);
    const Lines newLines = linesOf(newSource);
    return LineComparison(oldLines, newLines).compare();
}

}  // namespace zev
