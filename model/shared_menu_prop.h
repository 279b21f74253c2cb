// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

#include "model/menu_prop.h"

namespace zev {

/// A property set with the behaviour of a value, whose storage is shared by all copies until one of
/// them is edited. Most items of a menu carry the same starting values and never change them; in
/// menus of thousands of items their sets would make up most of the memory.
class SharedMenuProp {
  public:
    /// The empty set.
    SharedMenuProp() = default;
    SharedMenuProp(MenuProp prop) : m_prop(std::make_shared<MenuProp>(std::move(prop))) {}

    const MenuProp& operator*() const { return m_prop ? *m_prop : emptySet(); }
    const MenuProp* operator->() const { return &**this; }

    /// The set for writing; a copy of its own from now on. The reference is valid until this object
    /// is copied, assigned to or destroyed.
    MenuProp& edit() {
        if (!m_prop || m_prop.use_count() > 1)
            m_prop = std::make_shared<MenuProp>(**this);
        return *m_prop;
    }

    friend bool operator==(const SharedMenuProp& left, const SharedMenuProp& right) {
        return left.m_prop == right.m_prop || *left == *right;
    }

  private:
    static const MenuProp& emptySet() {
        static const MenuProp empty;
        return empty;
    }

    std::shared_ptr<MenuProp> m_prop;  ///< null is the empty set
};

}  // namespace zev
