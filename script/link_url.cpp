// SPDX-License-Identifier: MIT
#include "script/link_url.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "text/ascii.h"

namespace zev {

namespace {

bool isControlOrBlank(char character) {
    return static_cast<unsigned char>(character) <= 0x20;
}

/// Where a scheme such as "http:" ends, after its colon; 0 without one.
std::size_t schemeEnd(std::string_view url) {
    const std::size_t colon = url.find(':');
    if (colon == std::string_view::npos || !isAsciiLetter(url.front()))
        return 0;
    const std::string_view scheme = url.substr(0, colon);
    const bool isScheme = std::all_of(scheme.begin(), scheme.end(), [](char c) {
        return isAsciiLetter(c) || isAsciiDigit(c) || c == '+' || c == '.' || c == '-';
    });
    return isScheme ? colon + 1 : 0;
}

bool isSlash(char character) {
    return character == '/' || character == '\\';
}

bool countsFromFolder(std::string_view url) {
    const bool hasHost = url.size() > 1 && isSlash(url[0]) && isSlash(url[1]);
    return !url.empty() && url[0] != '#' && url[0] != '?' && !hasHost && schemeEnd(url) == 0;
}

/// The scheme and host of an address, without the slash after them.
std::string_view originOf(std::string_view url) {
    const std::size_t host = url.find("//", schemeEnd(url));
    if (host != schemeEnd(url))
        return {};
    return url.substr(0, url.find_first_of("/?#", host + 2));
}

std::string percentEncoded(std::string_view url) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    constexpr std::string_view kEncoded = "\"<>`{}^";
    std::string text;
    for (const char character : url) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte > 0x20 && byte < 0x7F && kEncoded.find(character) == std::string_view::npos) {
            text += character;
        } else {
            text += '%';
            text += kDigits[byte >> 4];
            text += kDigits[byte & 0xF];
        }
    }
    return text;
}

/// A path without "." and "..". One from the root loses the ".." that lead out of it, another keeps
/// them at its beginning.
std::string withoutDots(std::string_view path) {
    const bool isRooted = path.starts_with('/');
    std::vector<std::string_view> parts;
    std::size_t upCount = 0;  // of the parts, these are ".."
    for (std::size_t begin = isRooted ? 1 : 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string_view part = path.substr(begin, end - begin);
        const bool isLast = end == path.size();
        begin = end + 1;
        if (part == ".." && parts.size() > upCount) {
            parts.pop_back();
        } else if (part == ".." && !isRooted) {
            parts.push_back(part);
            ++upCount;
        } else if (part != "." && part != "..") {
            parts.push_back(part);
            continue;
        }
        if (isLast)
            parts.emplace_back();  // it is a folder
    }
    std::string result = isRooted ? "/" : "";
    for (std::size_t i = 0; i < parts.size(); ++i)
        result.append(i > 0 ? "/" : "").append(parts[i]);
    // These would mean a host, a scheme, or the page itself.
    const bool isMistakable = !isRooted && (result.empty() || result.front() == '/' ||
                                            parts.front().find(':') != std::string_view::npos);
    return isMistakable ? "./" + result : result;
}

}  // namespace

std::string cleanURL(std::string_view url) {
    while (!url.empty() && isControlOrBlank(url.front()))
        url.remove_prefix(1);
    while (!url.empty() && isControlOrBlank(url.back()))
        url.remove_suffix(1);
    std::string text(url);
    std::erase_if(text, [](char c) { return static_cast<unsigned char>(c) < 0x20; });
    return text;
}

bool isScriptURL(std::string_view cleanUrl) {
    constexpr std::string_view kScheme = "javascript:";
    return equalsIgnoringCase(cleanUrl.substr(0, kScheme.size()), kScheme);
}

std::string resolveLink(std::string_view base, std::string_view url) {
    const std::string clean = cleanURL(url);
    if (!countsFromFolder(clean))
        return percentEncoded(clean);
    const std::size_t pathSize = std::min(clean.find_first_of("?#"), clean.size());
    std::string path = clean.substr(0, pathSize);
    std::replace(path.begin(), path.end(), '\\', '/');
    const std::string_view origin = originOf(base);
    if (!path.starts_with('/')) {
        std::string_view folder = base.substr(origin.size());
        folder = folder.substr(0, folder.find_first_of("?#"));
        folder = folder.substr(0, folder.rfind('/') + 1);
        path.insert(0, folder.empty() && !origin.empty() ? "/" : folder);
    }
    return percentEncoded(std::string(origin) + withoutDots(path) + clean.substr(pathSize));
}

}  // namespace zev
