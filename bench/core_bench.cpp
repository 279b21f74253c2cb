// SPDX-License-Identifier: MIT
// Writer, reader and Add Menu Item, each over menus of 2,000 and 20,000 items. BM_Memcpy copies the
// very text that the other two write and read: the floor that the machine's memory sets.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "model/menu_document.h"
#include "model/tree_editing.h"
#include "script/script_reader.h"
#include "script/script_writer.h"

namespace {

/// A site-like menu of four levels, twenty items a menu, filled breadth first.
zev::MenuContent MenuOf(std::size_t itemCount) {
    zev::MenuContent content;
    constexpr std::size_t kItemsAMenu = 20;
    std::vector<zev::MenuNode*> nodes = {nullptr};
    for (std::size_t number = 0; number < itemCount; ++number) {
        zev::MenuNode* const parent = nodes[number / kItemsAMenu];
        zev::ItemProp item;
        item.Caption = "Department number " + std::to_string(number);
        item.URL = "pages/section/page" + std::to_string(number) + ".html";
        item.MenuProperty = zev::newItemMenuProp();
        std::string text = item.Caption;
        nodes.push_back(content.tree.append(parent, "Key " + std::to_string(number),
                                            std::move(text), std::move(item)));
    }
    content.ItemCounter = static_cast<std::int16_t>(itemCount);
    return content;
}

std::string DefinitionOf(std::size_t itemCount) {
    return zev::GenerateScript(MenuOf(itemCount));
}

void CountBytes(benchmark::State& state, std::size_t bytesARound) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(bytesARound));
}

std::size_t ItemCount(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0));
}

void BM_Memcpy(benchmark::State& state) {
    const std::string text = DefinitionOf(ItemCount(state));
    std::string copy(text.size(), '\0');
    for (auto _ : state) {
        std::memcpy(copy.data(), text.data(), text.size());
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    }
    CountBytes(state, text.size());
}

void BM_GenerateScript(benchmark::State& state) {
    const zev::MenuContent content = MenuOf(ItemCount(state));
    std::size_t length = 0;
    for (auto _ : state) {
        const std::string text = zev::GenerateScript(content);
        length = text.size();
        benchmark::DoNotOptimize(text.data());
    }
    CountBytes(state, length);
}

/// The content is made and destroyed outside the measured time.
void BM_ReadScript(benchmark::State& state) {
    const std::string text = DefinitionOf(ItemCount(state));
    for (auto _ : state) {
        state.PauseTiming();
        std::optional<zev::MenuContent> content(std::in_place);
        state.ResumeTiming();
        benchmark::DoNotOptimize(zev::ReadScript(text, *content));
        state.PauseTiming();
        if (content->tree.size() != ItemCount(state))
            state.SkipWithError("not all items were read");
        content.reset();
        state.ResumeTiming();
    }
    CountBytes(state, text.size());
}

/// In a tree of that many siblings, the new item taken away again outside the measured time.
void BM_AddMenuItem(benchmark::State& state) {
    zev::MenuDocument document("/program");
    for (std::size_t i = 0; i < ItemCount(state); ++i)
        zev::addMenuItem(document);
    const std::int16_t counter = document.ItemCounter();
    for (auto _ : state) {
        benchmark::DoNotOptimize(zev::addMenuItem(document));
        state.PauseTiming();
        zev::deleteItem(document);
        document.apply(zev::SetItemCounter{counter});
        state.ResumeTiming();
    }
}

BENCHMARK(BM_Memcpy)->Arg(2000)->Arg(20000);
BENCHMARK(BM_GenerateScript)->Arg(2000)->Arg(20000);
BENCHMARK(BM_ReadScript)->Arg(2000)->Arg(20000);
BENCHMARK(BM_AddMenuItem)->Arg(20000);

}  // namespace

BENCHMARK_MAIN();
