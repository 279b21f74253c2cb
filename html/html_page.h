#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "html/html_parse.h"
#include "html/html_tokenizer.h"
#include "platform/file_system.h"

namespace zev {

/// The pages of a file system, token by token. Holds the page's bytes once.
class HtmlPage final : public HtmlParse {
  public:
    /// `files` is not owned and must outlive this object.
    explicit HtmlPage(const FileSystem& files);
    HtmlPage(const HtmlPage&) = delete;
    HtmlPage& operator=(const HtmlPage&) = delete;

    FileOutcome LoadFile(const std::string& path) override;
    std::string_view TagText() const override;
    std::string_view Attribute(std::string_view name) const override;
    void SetAttribute(std::string_view name, std::string_view value) override;
    void Close() override;

  private:
    void readBatch() override;
    std::string_view lowerCaseName() const override;
    bool hasAttributes() const;
    std::size_t nameEnd() const { return m_current->name.size(); }

    const FileSystem& m_files;
    std::optional<FileResult<std::string>> m_file;  // kept as read: a page may be large
    std::optional<HtmlTokenizer> m_tokenizer;
    std::array<HtmlToken, 8> m_batch;      // without a page: the first one is empty
    const HtmlToken* m_changed = nullptr;  // whose attributes were set, and its text since
    std::string m_changedText;
    mutable std::string m_lowerCaseName;  // of the token asked last
};

}  // namespace zev
