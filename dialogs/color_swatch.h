// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <cstdint>
#include <optional>

namespace zev {

/// A small area in one colour; a hatched one stands for "no colour". Assistive technology reads the
/// colour as the description: "#RRGGBB" or "none".
class ColorSwatch : public QWidget {
    Q_OBJECT
  public:
    explicit ColorSwatch(QWidget* parent = nullptr);

    /// The colour value that is shown; nothing for none.
    std::optional<std::int32_t> color() const { return m_color; }
    void setColor(std::optional<std::int32_t> color);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::optional<std::int32_t> m_color;
};

}  // namespace zev
