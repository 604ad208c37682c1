// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <boost/asio/awaitable.hpp>

#include "client/AgentUrl.h"
#include "model/AgentStatus.h"
#include "model/InventoryData.h"
#include "model/NetworkConnection.h"
#include "model/ThreatAlert.h"

namespace quillmark {

/// The client of the agent's HTTP interface: four read operations on loopback.
///
/// Every operation completes exactly once, with a value or with no value. The
/// reason for no value (no token, no agent, no answer, a body that cannot be
/// decoded) is not reported; the HTTP status is ignored. An empty list is a value.
/// The client is immutable after construction, so all operations may run at the same
/// time, from any thread, as long as the client outlives them. Each runs on its
/// caller's executor, which must run one handler at a time.
class IPCClient final {
 public:
  /// Reads the access token; it is not read again later.
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

  /// The request for a record of which only `list` is wanted.
  template <class R, class List>
  [[nodiscard]] boost::asio::awaitable<std::optional<List>> getList(std::string_view endpoint,
                                                                    List R::*list) const;
  /// Both texts must outlive the request.
  template <class R>
  [[nodiscard]] boost::asio::awaitable<std::optional<R>> makeRequest(std::string_view endpoint,
                                                                     std::string_view method) const;

  const std::string baseURL = agentBaseUrl;
  std::optional<std::string> authToken;
};

}  // namespace quillmark
