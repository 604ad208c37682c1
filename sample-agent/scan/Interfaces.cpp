// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scan/Interfaces.h"

#include <string_view>

#include "platform/Utf8.h"
#include "procfs/SystemFile.h"
#include "procfs/Text.h"

namespace quillmark::sample {

std::vector<std::string> networkInterfaces(const std::string& procRoot) {
  std::vector<std::string> names;
  const auto text = readSystemFile(procRoot + "/net/dev").value_or("");
  for (const auto line : split(text, '\n')) {
    // The two heading lines have no colon. A name may contain one, the counters
    // after it do not.
    const std::size_t colon = line.rfind(':');
    if (colon == std::string_view::npos) {
      continue;
    }
    const auto name = line.substr(0, colon);
    names.push_back(asUtf8(name.substr(name.find_first_not_of(' '))));
  }
  return names;
}

}  // namespace quillmark::sample
