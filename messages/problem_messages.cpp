// SPDX-License-Identifier: MIT
#include "messages/problem_messages.h"

#include "checks/item_names.h"
#include "messages/difference_messages.h"

namespace zev {

namespace {

using Reason = MenuProblem::Reason;

std::string placeText(const MenuProblem& problem) {
    if (problem.isDefault)
        return "the defaults";
    if (!problem.item)
        return "the top menu";
    const std::string item = itemPathText(itemPath(problem.item));
    return problem.isProperty ? "the menu of " + item : item;
}

std::string reasonText(Reason reason, const std::string& value) {
    const std::string quoted = " \"" + value + '"';
    switch (reason) {
        case Reason::BareApostrophe:
            return "an apostrophe without a backslash breaks the script in" + quoted;
        case Reason::LastBackslash:
            return "a backslash at the end breaks the script in" + quoted;
        case Reason::Placeholder:
            return "~||~ is read back as an apostrophe in" + quoted;
        case Reason::LineBreak:
            return "a line break breaks the script";
        case Reason::NoNumber:
            return "not a number that makes sense here:" + quoted;
        case Reason::NoBorder:
            return "no border that a browser understands:" + quoted;
        case Reason::NoColour:
            return "no colour that a browser understands:" + quoted;
        case Reason::NoFile:
            return "there is no file" + quoted;
        case Reason::NoAnchor:
            return "the page has no such place:" + quoted;
        case Reason::NoAlternative:
            return "the image has no alt text:" + quoted;
        case Reason::NoCaption:
            return "is empty";
        case Reason::SameCaption:
            return "an item before it in the menu has the same:" + quoted;
        case Reason::NoSide:
            return "none of right, bottom, left and top:" + quoted;
    }
    return {};
}

}  // namespace

std::string problemText(const MenuProblem& problem) {
    return placeText(problem) + ": " + problem.field + ": " +
           reasonText(problem.reason, problem.value);
}

}  // namespace zev
