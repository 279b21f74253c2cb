#include "model/menu_prop.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "text/ascii.h"
#include "text/pattern.h"

namespace zev {

namespace {

constexpr std::string_view kDefaultsObject = "zev_state.";
constexpr std::string_view kMenuObject = "zevmenu.";

/// The words of positions 1 to 4; any other position has none.
constexpr std::array<std::string_view, 5> kPositionWords = {"", "right", "bottom", "left", "top"};

bool HasWord(std::int16_t position) {
    return position >= 1 && position <= 4;
}

std::string_view PositionWord(std::int16_t position) {
    return kPositionWords[static_cast<std::size_t>(position)];
}

std::int16_t PositionOfWord(std::string_view word) {
    for (std::int16_t position = 1; HasWord(position); ++position) {
        if (PositionWord(position) == word)
            return position;
    }
    return 0;
}

/// Appends the lines of one script object.
class LineWriter {
  public:
    LineWriter(std::string_view object, std::string& text) : m_object(object), m_text(text) {}

    void number(std::string_view name, std::string_view value) {
        line(name, " = ", value, ";\r\n");
    }

    void quoted(std::string_view name, std::string_view value, std::string_view unit = {}) {
        line(name, " = '", value, unit);
        m_text += "';\r\n";
    }

  private:
    void line(std::string_view name, std::string_view opening, std::string_view value,
              std::string_view closing) {
        m_text += m_object;
        m_text += name;
        m_text += opening;
        m_text += value;
        m_text += closing;
    }

    std::string_view m_object;
    std::string& m_text;
};

bool IsOwnValue(const std::string& value, const std::string& inherited) {
    return !value.empty() && value != inherited;
}

void WriteBoxLook(LineWriter& writer, const MenuProp& prop, const MenuProp& defaults) {
    if (!prop.Columns.empty())
        writer.number("columns", prop.Columns);
    if (IsOwnValue(prop.BgImg, defaults.BgImg))
        writer.quoted("bgimage", prop.BgImg);
    if (IsOwnValue(prop.HBgColor, defaults.HBgColor))
        writer.quoted("hbgcolor", prop.HBgColor);
    if (IsOwnValue(prop.HFtColor, defaults.HFtColor))
        writer.quoted("hftcolor", prop.HFtColor);
    if (IsOwnValue(prop.NBgColor, defaults.NBgColor))
        writer.quoted("nbgcolor", prop.NBgColor);
    if (IsOwnValue(prop.NFtColor, defaults.NFtColor))
        writer.quoted("nftcolor", prop.NFtColor);
    if (IsOwnValue(prop.Spacing, defaults.Spacing))
        writer.number("hspacing", prop.Spacing);
    if (prop.Position != defaults.Position && HasWord(prop.Position))
        writer.quoted("position", PositionWord(prop.Position));
}

void WriteFilters(LineWriter& writer, const MenuProp& prop) {
    if (!prop.FilterFade.empty())
        writer.quoted("ffade", prop.FilterFade);
    if (!prop.FilterOpacity.empty())
        writer.quoted("fopacity", prop.FilterOpacity);
    if (!prop.FilterShadow.empty())
        writer.quoted("fshadow", prop.FilterShadow);
}

void WriteFont(LineWriter& writer, const MenuProp& prop, const MenuProp& defaults) {
    if (IsOwnValue(prop.FontFamily, defaults.FontFamily))
        writer.quoted("fontFamily", prop.FontFamily);
    if (IsOwnValue(prop.FontSize, defaults.FontSize))
        writer.quoted("fontSize", prop.FontSize, "pt");
    if (prop.FontStyle != defaults.FontStyle)
        writer.quoted("fontStyle", prop.FontStyle ? "italic" : "none");
    if (prop.FontWeight != defaults.FontWeight)
        writer.quoted("fontWeight", prop.FontWeight ? "bold" : "none");
}

/// The HTML members are compared with their usual values, not with emptiness and not with the
/// defaults: a missing line stands for the usual value, so an empty one must be written.
void WriteItemSurroundings(LineWriter& writer, const MenuProp& prop) {
    if (prop.HTMLAfter != "&nbsp;&nbsp;")
        writer.quoted("htmlAfter", prop.HTMLAfter);
    if (prop.HTMLBefore != "&nbsp;&nbsp;")
        writer.quoted("htmlBefore", prop.HTMLBefore);
    if (!prop.ItemBorder.empty())
        writer.quoted("itemborder", prop.ItemBorder);
    if (!prop.MenuBorder.empty())
        writer.quoted("menuborder", prop.MenuBorder);
    if (!prop.Target.empty())
        writer.quoted("target", prop.Target);
    if (!prop.CellPadding.empty() && prop.CellPadding != "1")
        writer.number("cellpadding", prop.CellPadding);
    if (prop.Divider != "&nbsp;")
        writer.quoted("divider", prop.Divider);
}

struct TextProperty {
    std::string_view name;
    std::string MenuProp::*member;
};

/// The script properties whose value goes into a member as it stands.
constexpr TextProperty kTextProperties[] = {
    {"bgimage", &MenuProp::BgImg},           {"columns", &MenuProp::Columns},
    {"cellpadding", &MenuProp::CellPadding}, {"divider", &MenuProp::Divider},
    {"hbgcolor", &MenuProp::HBgColor},       {"hftcolor", &MenuProp::HFtColor},
    {"htmlAfter", &MenuProp::HTMLAfter},     {"htmlBefore", &MenuProp::HTMLBefore},
    {"itemborder", &MenuProp::ItemBorder},   {"menuborder", &MenuProp::MenuBorder},
    {"nbgcolor", &MenuProp::NBgColor},       {"nftcolor", &MenuProp::NFtColor},
    {"hspacing", &MenuProp::Spacing},        {"target", &MenuProp::Target},
    {"ffade", &MenuProp::FilterFade},        {"fopacity", &MenuProp::FilterOpacity},
    {"fshadow", &MenuProp::FilterShadow},
};

void SetFontProperty(MenuProp& prop, std::string_view name, std::string_view value) {
    if (name == "fontFamily")
        prop.FontFamily = value;
    else if (name == "fontSize")
        prop.FontSize = replaceAll(value, "pt", "");
    else if (name == "fontStyle")
        prop.FontStyle = value == "italic";
    else if (name == "fontWeight")
        prop.FontWeight = value == "bold";
    else
        return;
    prop.FontSet = true;
}

}  // namespace

void MenuProp::SetDefault() {
    BgImg = "";
    Columns = "1";
    CellPadding = "1";
    HBgColor = "#888888";
    HFtColor = "#000000";
    NBgColor = "#000000";
    NFtColor = "#FFFFFF";
    MenuOffset = "1";
    Spacing = "";
    CloseDelay = "500";
    FontFamily = "Arial";
    FontStyle = false;
    FontWeight = false;
    FontSize = "10";
    Position = 1;
}

std::string MenuProp::GetDefaultText() const {
    std::string text;
    LineWriter writer(kDefaultsObject, text);
    if (!Columns.empty())
        writer.number("columns", Columns);
    if (!BgImg.empty())
        writer.quoted("bgimage", BgImg);
    if (!HBgColor.empty())
        writer.quoted("hbgcolor", HBgColor);
    if (!HFtColor.empty())
        writer.quoted("hftcolor", HFtColor);
    if (!NBgColor.empty())
        writer.quoted("nbgcolor", NBgColor);
    if (!NFtColor.empty())
        writer.quoted("nftcolor", NFtColor);
    if (!Spacing.empty())
        writer.number("hspacing", Spacing);
    if (!MenuOffset.empty())
        writer.number("menuoffset", MenuOffset);
    if (!CloseDelay.empty())
        writer.number("closedelay", CloseDelay);
    if (HasWord(Position))
        writer.quoted("position", PositionWord(Position));
    if (!FontFamily.empty())
        writer.quoted("fontFamily", FontFamily);
    if (!FontSize.empty())
        writer.quoted("fontSize", FontSize, "pt");
    if (FontStyle)
        writer.quoted("fontStyle", "italic");
    if (FontWeight)
        writer.quoted("fontWeight", "bold");
    return text;
}

std::string MenuProp::GetText(const MenuProp& defaults) const {
    std::string text;
    LineWriter writer(kMenuObject, text);
    WriteBoxLook(writer, *this, defaults);
    WriteFilters(writer, *this);
    if (FontSet)
        WriteFont(writer, *this, defaults);
    WriteItemSurroundings(writer, *this);
    return text;
}

void MenuProp::SetProperty(std::string_view StrProp, std::string_view StrValue) {
    const std::string_view value = trimSpaces(StrValue);
    const auto* const property =
        std::find_if(std::begin(kTextProperties), std::end(kTextProperties),
                     [&](const TextProperty& candidate) { return candidate.name == StrProp; });
    if (property != std::end(kTextProperties))
        this->*(property->member) = value;
    else if (StrProp == "position")
        Position = PositionOfWord(value);
    else
        SetFontProperty(*this, StrProp, value);
}

}  // namespace zev
