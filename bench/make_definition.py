# SPDX-License-Identifier: MIT
"""Writes a definition of N items to standard output, in the form the editor writes.

make_definition.py N: a site-like tree, twenty top-level menus, four levels, captions and links of
realistic length. The result only feeds benchmarks; `zevmenu format` brings it into the exact
written form first.
"""

import sys


def write_menu(out, menu_id, items):
    out.append(f"zevmenu = new ZEVMenu('{menu_id}');")
    out.append("")
    out.extend(items)
    out.append("")


def main():
    count = int(sys.argv[1])
    out = ["zev_state.columns = 1;", ""]
    made = 0
    # Breadth first: (menu id, level); every item of the first three levels gets a submenu.
    pending = [("0", 1)]
    while pending and made < count:
        menu_id, level = pending.pop(0)
        items = []
        for position in range(1, 21):
            if made == count:
                break
            made += 1
            items.append(f"zevmenu.AddItem('Department number {made}', "
                         f"'pages/section{level}/page{made}.html', '');")
            if level < 4:
                child = str(position) if menu_id == "0" else f"{menu_id}i{position}"
                pending.append((child, level + 1))
        write_menu(out, menu_id, items)
    sys.stdout.write("\r\n".join(out) + "\r\n")


main()
