// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/IPCClient.h"

#include <exception>
#include <utility>

#include "client/AccessToken.h"
#include "client/AgentUrl.h"
#include "client/HttpExchange.h"
#include "model/Codec.h"

namespace quillmark {
namespace {

namespace asio = boost::asio;

}  // namespace

IPCClient::IPCClient() { loadAuthToken(); }

void IPCClient::loadAuthToken() { authToken = readAccessToken(); }

asio::awaitable<std::optional<AgentStatus>> IPCClient::getStatus() const {
  return makeRequest<AgentStatus>(statusPath, "GET");
}

asio::awaitable<std::optional<std::vector<ThreatAlert>>> IPCClient::getAlerts() const {
  // Named, because GCC 12 may destroy a temporary inside a co_await twice.
  auto request = makeRequest<AlertsResponse>(alertsPath, "GET");
  auto response = co_await std::move(request);
  if (!response) {
    co_return std::nullopt;
  }
  co_return std::move(response->alerts);
}

asio::awaitable<std::optional<std::vector<NetworkConnection>>> IPCClient::getNetwork() const {
  auto request = makeRequest<NetworkResponse>(networkPath, "GET");
  auto response = co_await std::move(request);
  if (!response) {
    co_return std::nullopt;
  }
  co_return std::move(response->connections);
}

asio::awaitable<std::optional<InventoryData>> IPCClient::getInventory() const {
  return makeRequest<InventoryData>(inventoryPath, "GET");
}

template <class R>
asio::awaitable<std::optional<R>> IPCClient::makeRequest(std::string_view endpoint,
                                                         std::string_view method) const {
  try {
    if (!authToken || !fitsHeaderField(*authToken)) {
      co_return std::nullopt;
    }
    auto request = requestTo(baseURL + std::string(endpoint));
    if (!request) {
      co_return std::nullopt;
    }
    request->method = method;
    request->token = *authToken;

    auto exchanged = exchange(std::move(*request), {});
    auto answer = co_await std::move(exchanged);
    if (!answer) {
      co_return std::nullopt;
    }
    auto decoded = decode<R>(std::move(answer->body));
    if (!decoded) {
      co_return std::nullopt;
    }
    co_return std::move(*decoded);
  } catch (const std::exception&) {
    // Out of memory, for example: every failure is no value.
    co_return std::nullopt;
  }
}

}  // namespace quillmark
