// SPDX-License-Identifier: MIT
// The page engine's whole job in memory, beside looking for every "<" in the same bytes: the floor
// for whoever reads markup.
//
// usage: zev_page_engine_bench SAMPLE_PAGES_FOLDER MANUAL_FOLDER [options of Google Benchmark]

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "html/html_tokenizer.h"
#include "integrator/page_rewriter.h"
#include "tests/support/hostile_pages.h"

namespace {

constexpr std::size_t kCorpusBytes = 20'000'000;
constexpr std::size_t kSmallPageBytes = 2'000;
constexpr std::size_t kLargePageBytes = 60'000;
constexpr std::size_t kHostilePageBytes = 4'000'000;

using Corpus = std::vector<std::string>;

/// The pages in a folder and those below it, or those of one name.
Corpus PagesBelow(const std::string& folder, std::string_view fileName) {
    std::set<std::filesystem::path> paths;  // sorted: the same corpus on every machine
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        const std::filesystem::path& path = entry.path();
        const bool isPage = path.extension() == ".htm" || path.extension() == ".html";
        if (isPage && (fileName.empty() || path.filename() == fileName))
            paths.insert(path);
    }
    Corpus pages;
    for (const std::filesystem::path& path : paths) {
        std::ifstream file(path, std::ios::binary);
        pages.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return pages;
}

/// The page with what is in its body repeated until it has the wanted size; empty for a page
/// without a body.
std::string Grown(const std::string& page, std::size_t wantedBytes) {
    std::size_t begin = std::string::npos;
    std::size_t end = std::string::npos;
    zev::HtmlTokenizer tokenizer(page);
    for (zev::HtmlToken token; tokenizer.next(token);)
        if (begin == std::string::npos && (token.name == "body" || token.name == "BODY"))
            begin = token.offset + token.source.size();
        else if (token.name == "/body" || token.name == "/BODY")
            end = token.offset;
    if (begin == std::string::npos || end == std::string::npos || begin >= end)
        return {};
    std::string grown = page.substr(0, begin);
    while (grown.size() < wantedBytes)
        grown.append(page, begin, end - begin);
    return grown.append(page, end);
}

/// Sizes are spread evenly over those of real pages.
Corpus GrownCorpus(const Corpus& samples) {
    Corpus corpus;
    std::size_t bytes = 0;
    for (std::size_t i = 0; bytes < kCorpusBytes; ++i) {
        constexpr std::size_t kStepBytes = 7'919;
        const std::size_t size =
            kSmallPageBytes + i * kStepBytes % (kLargePageBytes - kSmallPageBytes);
        std::string page = Grown(samples[i % samples.size()], size);
        bytes += page.size();
        if (!page.empty())
            corpus.push_back(std::move(page));
    }
    return corpus;
}

Corpus RepeatedCorpus(const Corpus& samples) {
    Corpus corpus;
    std::size_t bytes = 0;
    for (std::size_t i = 0; bytes < kCorpusBytes; ++i) {
        corpus.push_back(samples[i % samples.size()]);
        bytes += corpus.back().size();
    }
    return corpus;
}

std::size_t SizeOf(const Corpus& corpus) {
    std::size_t bytes = 0;
    for (const std::string& page : corpus)
        bytes += page.size();
    return bytes;
}

void CountBytes(benchmark::State& state, const Corpus& corpus) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(SizeOf(corpus)));
}

void FindLessThanSigns(benchmark::State& state, const Corpus& corpus) {
    std::size_t count = 0;
    for (auto _ : state) {
        count = 0;
        for (const std::string& page : corpus) {
            const char* const end = page.data() + page.size();
            const void* found = nullptr;
            for (const char* from = page.data();
                 (found = std::memchr(from, '<', static_cast<std::size_t>(end - from))) != nullptr;
                 from = static_cast<const char*>(found) + 1)
                ++count;
        }
        benchmark::DoNotOptimize(count);
    }
    CountBytes(state, corpus);
    state.counters["bytes_a_sign"] =
        static_cast<double>(SizeOf(corpus)) / static_cast<double>(count);
}

/// As `zevmenu integrate` does it, without the disk. A page is let go of when the next one comes:
/// otherwise the memory for each would be given back to the system and asked for again.
void RewritePages(benchmark::State& state, const Corpus& corpus) {
    const zev::RewriteOptions options{"lib/", false};
    Corpus pages;
    std::optional<std::string> page;
    for (auto _ : state) {
        state.PauseTiming();
        pages = corpus;
        state.ResumeTiming();
        for (std::string& source : pages) {
            page.emplace(std::move(source));
            zev::IntegrationStatus status;
            benchmark::DoNotOptimize(zev::rewritePage(*page, options, status));
        }
    }
    CountBytes(state, corpus);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount < 3) {
        std::fprintf(stderr, "usage: %s SAMPLE_PAGES_FOLDER MANUAL_FOLDER [OPTION...]\n",
                     arguments[0]);
        return 2;
    }
    const Corpus samples = PagesBelow(arguments[1], "before.htm");
    const Corpus manual = PagesBelow(arguments[2], "");
    if (samples.empty() || manual.empty()) {
        std::fprintf(stderr, "%s: no pages\n", arguments[0]);
        return 1;
    }
    const std::vector<std::pair<std::string, Corpus>> corpora = {
        {"samples_grown", GrownCorpus(samples)},
        {"samples_as_they_are", RepeatedCorpus(samples)},
        {"manual", RepeatedCorpus(manual)},
    };
    for (const auto& [name, corpus] : corpora) {
        benchmark::RegisterBenchmark(("FindLessThanSigns/" + name).c_str(), FindLessThanSigns,
                                     std::cref(corpus));
        benchmark::RegisterBenchmark(("RewritePages/" + name).c_str(), RewritePages,
                                     std::cref(corpus));
    }
    for (const zev::HostilePage& hostile : zev::kHostilePages) {
        benchmark::RegisterBenchmark(("RewriteHostilePage/" + hostile.name).c_str(),
                                     [&hostile](benchmark::State& state) {
                                         RewritePages(
                                             state, {zev::hostilePage(hostile, kHostilePageBytes)});
                                     });
    }
    argumentCount -= 2;
    arguments += 2;
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
