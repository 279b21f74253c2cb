// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zev {

/// Puts numbers and texts into bytes, one behind the other.
class RecordWriter {
  public:
    /// Seven bits a byte, the lowest first; the eighth says that more follow.
    void number(std::uint64_t value) {
        for (; value >= 0x80; value >>= 7)
            m_bytes += static_cast<char>(value | 0x80);
        m_bytes += static_cast<char>(value);
    }
    /// Its length and its bytes.
    void text(std::string_view value) {
        number(value.size());
        m_bytes += value;
    }
    const std::string& bytes() const { return m_bytes; }
    void clear() { m_bytes.clear(); }

  private:
    std::string m_bytes;
};

/// Takes them out again. What is not there is 0 or empty, and from then on all is.
class RecordReader {
  public:
    /// `bytes` are not owned; texts are parts of them.
    explicit RecordReader(std::string_view bytes) : m_rest(bytes) {}

    std::uint64_t number() {
        std::uint64_t value = 0;
        for (unsigned shift = 0; shift < 64 && !m_rest.empty(); shift += 7) {
            const auto byte = static_cast<unsigned char>(m_rest.front());
            m_rest.remove_prefix(1);
            value |= std::uint64_t{byte & 0x7FU} << shift;
            if (byte < 0x80)
                return value;
        }
        fail();
        return 0;
    }
    std::string_view text() {
        const std::uint64_t size = number();
        if (size > m_rest.size()) {
            fail();
            return {};
        }
        const std::string_view value = m_rest.substr(0, size);
        m_rest.remove_prefix(size);
        return value;
    }
    bool isAtEnd() const { return m_rest.empty(); }
    bool hasFailed() const { return m_hasFailed; }

  private:
    void fail() {
        m_hasFailed = true;
        m_rest = {};
    }

    std::string_view m_rest;
    bool m_hasFailed = false;
};

}  // namespace zev
