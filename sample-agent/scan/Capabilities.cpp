// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scan/Capabilities.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "procfs/Number.h"
#include "procfs/SystemFile.h"
#include "procfs/Text.h"

namespace quillmark::sample {
namespace {

constexpr std::array<std::string_view, 41> capabilityNames = {
    "CAP_CHOWN",
    "CAP_DAC_OVERRIDE",
    "CAP_DAC_READ_SEARCH",
    "CAP_FOWNER",
    "CAP_FSETID",
    "CAP_KILL",
    "CAP_SETGID",
    "CAP_SETUID",
    "CAP_SETPCAP",
    "CAP_LINUX_IMMUTABLE",
    "CAP_NET_BIND_SERVICE",
    "CAP_NET_BROADCAST",
    "CAP_NET_ADMIN",
    "CAP_NET_RAW",
    "CAP_IPC_LOCK",
    "CAP_IPC_OWNER",
    "CAP_SYS_MODULE",
    "CAP_SYS_RAWIO",
    "CAP_SYS_CHROOT",
    "CAP_SYS_PTRACE",
    "CAP_SYS_PACCT",
    "CAP_SYS_ADMIN",
    "CAP_SYS_BOOT",
    "CAP_SYS_NICE",
    "CAP_SYS_RESOURCE",
    "CAP_SYS_TIME",
    "CAP_SYS_TTY_CONFIG",
    "CAP_MKNOD",
    "CAP_LEASE",
    "CAP_AUDIT_WRITE",
    "CAP_AUDIT_CONTROL",
    "CAP_SETFCAP",
    "CAP_MAC_OVERRIDE",
    "CAP_MAC_ADMIN",
    "CAP_SYSLOG",
    "CAP_WAKE_ALARM",
    "CAP_BLOCK_SUSPEND",
    "CAP_AUDIT_READ",
    "CAP_PERFMON",
    "CAP_BPF",
    "CAP_CHECKPOINT_RESTORE",
};

std::uint64_t effectiveSet(std::string_view status) {
  constexpr std::string_view key = "CapEff:";
  for (const auto line : split(status, '\n')) {
    if (!line.starts_with(key)) {
      continue;
    }
    const auto values = words(line.substr(key.size()));
    return values.empty() ? 0 : parseNumber<std::uint64_t>(values.front(), 16).value_or(0);
  }
  return 0;
}

}  // namespace

std::vector<std::string> effectiveCapabilities(const std::string& procRoot) {
  const auto status = readSystemFile(procRoot + "/self/status").value_or("");
  const std::uint64_t set = effectiveSet(status);
  std::vector<std::string> names;
  for (std::size_t bit = 0; bit < 64; ++bit) {
    if ((set >> bit & 1U) != 0) {
      names.push_back(bit < capabilityNames.size() ? std::string(capabilityNames[bit])
                                                   : "CAP_" + std::to_string(bit));
    }
  }
  return names;
}

}  // namespace quillmark::sample
