// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <optional>
#include <string>

#include "agentctl/ConfigReadBack.h"
#include "agentctl/ConfigText.h"
#include "fuzz/Fuzzer.h"
#include "platform/Utf8.h"

namespace {

using namespace quillmark;
using namespace quillmark::fuzz;

void requireValue(const std::optional<std::string>& value, std::string_view text) {
  if (value) {
    require(!value->empty(), "a value is not empty");
    require(value->find_first_of("=\n") == std::string::npos,
            "a value contains neither = nor a line feed");
    require(text.find(*value) != std::string_view::npos, "a value is a part of its file");
    require(isUtf8(*value), "a value is text");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto text = textOf(data, size);
  if (!isUtf8(text)) {
    return 0;
  }
  const auto entries = readEntries(text);
  requireValue(entries.apiKey, text);
  requireValue(entries.serverUrl, text);

  // Values that the form shows and the user saves unchanged are read back unchanged.
  const auto saved = configText({.agentId = "id",
                                 .machineIdentifier = "machine",
                                 .serverUrl = entries.serverUrl.value_or(""),
                                 .apiKey = entries.apiKey.value_or(""),
                                 .home = "/home/user"});
  require(readEntries(saved) == entries, "what was saved is read back");
  return 0;
}
