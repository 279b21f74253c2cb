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
void FillDocument(zev::MenuDocument& document, std::size_t itemCount) {
    constexpr std::size_t kItemsAMenu = 20;
    std::vector<zev::MenuNode*> nodes = {nullptr};
    for (std::size_t number = 0; number < itemCount; ++number) {
        zev::MenuNode* const parent = nodes[number / kItemsAMenu];
        zev::ItemProp item;
        item.Caption = "Department number " + std::to_string(number);
        item.URL = "pages/section/page" + std::to_string(number) + ".html";
        item.MenuProperty = zev::NewItemMenuProp();
        std::string text = item.Caption;
        nodes.push_back(document.tree.append(parent, "Key " + std::to_string(number),
                                             std::move(text), std::move(item)));
    }
    document.ItemCounter = static_cast<std::int16_t>(itemCount);
    document.CurNode = document.selectedNode = document.tree.firstNode();
}

std::string DefinitionOf(std::size_t itemCount) {
    zev::MenuDocument document("/program");
    FillDocument(document, itemCount);
    return zev::GenerateScript(document);
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
    zev::MenuDocument document("/program");
    FillDocument(document, ItemCount(state));
    std::size_t length = 0;
    for (auto _ : state) {
        const std::string text = zev::GenerateScript(document);
        length = text.size();
        benchmark::DoNotOptimize(text.data());
    }
    CountBytes(state, length);
}

/// The document is made and destroyed outside the measured time.
void BM_ReadScript(benchmark::State& state) {
    const std::string text = DefinitionOf(ItemCount(state));
    for (auto _ : state) {
        state.PauseTiming();
        std::optional<zev::MenuDocument> document("/program");
        state.ResumeTiming();
        benchmark::DoNotOptimize(zev::ReadScript(text, *document));
        state.PauseTiming();
        if (document->tree.size() != ItemCount(state))
            state.SkipWithError("not all items were read");
        document.reset();
        state.ResumeTiming();
    }
    CountBytes(state, text.size());
}

/// In a tree of that many siblings, the new item taken away again outside the measured time.
void BM_AddMenuItem(benchmark::State& state) {
    zev::MenuDocument document("/program");
    for (std::size_t i = 0; i < ItemCount(state); ++i)
        zev::AddMenuItem(document);
    const std::int16_t counter = document.ItemCounter;
    for (auto _ : state) {
        benchmark::DoNotOptimize(zev::AddMenuItem(document));
        state.PauseTiming();
        zev::DeleteItem(document);
        document.ItemCounter = counter;
        state.ResumeTiming();
    }
}

BENCHMARK(BM_Memcpy)->Arg(2000)->Arg(20000);
BENCHMARK(BM_GenerateScript)->Arg(2000)->Arg(20000);
BENCHMARK(BM_ReadScript)->Arg(2000)->Arg(20000);
BENCHMARK(BM_AddMenuItem)->Arg(20000);

}  // namespace

BENCHMARK_MAIN();
