// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <boost/asio/awaitable.hpp>

#include "client/AgentRequest.h"
#include "model/AgentStatus.h"
#include "model/InventoryData.h"
#include "model/NetworkConnection.h"
#include "model/ThreatAlert.h"

namespace quillmark {

/// The one connection to the agent: four reads over its loopback interface.
/// Shared by whoever asks the same agent with the same token; never copied.
///
/// Every operation completes exactly once, with a value or with no value; the
/// reason for no value (no token, no agent, silence, a body that does not
/// decode) is told to nobody. An empty list is a value. The client is
/// immutable once constructed, so all operations may run at once, from any
/// thread, as long as it outlives them; each runs on its caller's executor.
class IPCClient final {
 public:
  /// Reads the access token, once for the client's life.
  IPCClient();
  IPCClient(const IPCClient&) = delete;
  IPCClient& operator=(const IPCClient&) = delete;

  [[nodiscard]] boost::asio::awaitable<std::optional<AgentStatus>> getStatus() const;
  [[nodiscard]] boost::asio::awaitable<std::optional<std::vector<ThreatAlert>>> getAlerts() const;
  [[nodiscard]] boost::asio::awaitable<std::optional<std::vector<NetworkConnection>>> getNetwork()
      const;
  [[nodiscard]] boost::asio::awaitable<std::optional<InventoryData>> getInventory() const;

 private:
  void loadAuthToken();

  /// Both texts must be literals: they are read while the request runs.
  template <class R>
  [[nodiscard]] boost::asio::awaitable<std::optional<R>> makeRequest(std::string_view endpoint,
                                                                     std::string_view method) const;

  const std::string baseURL = agentBaseUrl;
  std::optional<std::string> authToken;
};

}  // namespace quillmark
