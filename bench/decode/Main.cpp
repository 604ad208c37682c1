// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstddef>
#include <cstdlib>
#include <functional>
#include <string>
#include <utility>

#include <benchmark/benchmark.h>
#include <simdjson.h>

#include "decode/Contenders.h"
#include "decode/PeakMemory.h"
#include "decode/SampleBodies.h"
#include "model/Codec.h"
#include "platform/OperatingSystem.h"

namespace {

using namespace quillmark;

template <class R>
void compete(const std::string& name, const R& records, const R& few,
             const std::function<R(const std::string&)>& decodeBody) {
  const auto body = encode(records);
  if (decodeBody && decodeBody(body) != records) {
    std::abort();
  }
  const auto decodeOnly = [=](const std::string& text) {
    if (decodeBody) {
      benchmark::DoNotOptimize(decodeBody(text));
    } else {
      benchmark::DoNotOptimize(bench::documentByBoost(text));
    }
  };
  const auto action = [=] { decodeOnly(body); };
  const auto small = [=, text = encode(few)] { decodeOnly(text); };
  const double peak = bench::peakExtraBytes(small, action) / static_cast<double>(body.size());
  benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
    for (auto _ : state) {
      action();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(body.size()));
    state.counters["peak_by_body"] = peak;
  })->Unit(benchmark::kMicrosecond);
}

/// Decodes as the panel does, which moves its body into the decoder. The copy here
/// represents the panel's copy of a body without room for the parser's padding.
template <class R>
R decodedByPanel(const std::string& body) {
  std::string handedOver;
  handedOver.reserve(body.size() + simdjson::SIMDJSON_PADDING);
  handedOver = body;
  return std::move(*decode<R>(std::move(handedOver)));
}

template <class R>
void competeAll(const std::string& name, const R& records, const R& few,
                const std::function<R(const std::string&)>& bySimdjson,
                const std::function<R(const std::string&)>& byQt) {
  compete<R>(name + "/panel", records, few, decodedByPanel<R>);
  compete<R>(name + "/simdjson", records, few, bySimdjson);
  compete<R>(name + "/boost_document", records, few, {});
  compete<R>(name + "/qt", records, few, byQt);
}

}  // namespace

int main(int argc, char** argv) {
  // As the panel does.
  quillmark::returnLargeBlocksOnFree();
  benchmark::Initialize(&argc, argv);
  // From small to large: what a large body leaves in the heap would count for a small one.
  competeAll<InventoryData>("apps/5000", bench::sampleInventory(5'000), bench::sampleInventory(40),
                            bench::inventoryBySimdjson, bench::inventoryByQt);
  for (const std::size_t count : {std::size_t{100}, std::size_t{10'000}, std::size_t{200'000}}) {
    competeAll<NetworkResponse>("connections/" + std::to_string(count),
                                bench::sampleConnections(count), bench::sampleConnections(40),
                                bench::connectionsBySimdjson, bench::connectionsByQt);
  }
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
