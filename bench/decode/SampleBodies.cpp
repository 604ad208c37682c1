// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decode/SampleBodies.h"

#include <array>
#include <optional>
#include <string>

namespace quillmark::bench {
namespace {

std::string address(std::size_t index) {
  if (index % 5 == 0) {
    return "2001:db8:0:" + std::to_string(index % 9973) + "::" + std::to_string(index % 251);
  }
  return "10." + std::to_string(index % 256) + "." + std::to_string(index / 256 % 256) + "." +
         std::to_string(index % 199);
}

}  // namespace

NetworkResponse sampleConnections(std::size_t count) {
  constexpr std::array states{"ESTABLISHED", "LISTEN", "TIME_WAIT", "CLOSE_WAIT"};
  NetworkResponse result;
  result.connections.reserve(count);
  for (std::size_t index = 0; index < count; ++index) {
    const bool owned = index % 4 != 0;
    result.connections.push_back(
        {index % 3 == 0 ? "udp" : "tcp", address(index), std::to_string(index % 65536),
         address(index * 7 + 1), std::to_string(index * 13 % 65536), states[index % 4],
         owned ? std::optional(std::to_string(index % 32768)) : std::nullopt, "low"});
  }
  return result;
}

InventoryData sampleInventory(std::size_t apps) {
  InventoryData result;
  for (std::size_t index = 0; index < apps; ++index) {
    const auto number = std::to_string(index);
    result.apps.push_back({"application-" + number, "2." + number + ".1-3+deb12u1",
                           "Example Maintainers <maintainers@lists.example>",
                           "/usr/share/applications/application-" + number + ".desktop"});
  }
  for (std::size_t index = 0; index < 100; ++index) {
    result.services.push_back("service-" + std::to_string(index) + ".service");
  }
  result.network_interfaces = {"lo", "eth0", "wlan0"};
  result.permissions = {"cap_net_raw", "cap_sys_ptrace"};
  return result;
}

}  // namespace quillmark::bench
