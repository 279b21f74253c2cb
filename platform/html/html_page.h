#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "platform/html/html_tokenizer.h"
#include "platform/html_parse.h"

namespace zev {

/// The pages of a file system, token by token. Holds the page's bytes once.
class HtmlPage : public HtmlParse {
  public:
    /// `files` is not owned and must outlive this object.
    explicit HtmlPage(const FileSystem& files) : m_files(files) {}
    HtmlPage(const HtmlPage&) = delete;
    HtmlPage& operator=(const HtmlPage&) = delete;

    FileOutcome LoadFile(const std::string& path) override;
    bool IsLast() const override;
    bool IsTag() const override;
    std::string_view TagName() const override { return m_name; }
    std::string_view TagText() const override;
    std::string_view Attribute(std::string_view name) const override;
    void SetAttribute(std::string_view name, std::string_view value) override;
    std::string_view Text() const override { return m_token.text; }
    std::string_view Source() const override { return m_token.source; }
    void Next() override;
    void Close() override;

  private:
    void setName();
    std::size_t nameEnd() const;

    const FileSystem& m_files;
    std::optional<FileResult<std::string>> m_file;  // kept as read: a page may be large
    std::optional<HtmlTokenizer> m_tokenizer;
    HtmlToken m_token;
    std::string_view m_name;
    std::string m_lowerCaseName;               // what m_name shows where the page has upper case
    std::optional<std::string> m_changedText;  // once an attribute was set
};

}  // namespace zev
