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
  return getList(alertsPath, &AlertsResponse::alerts);
}

asio::awaitable<std::optional<std::vector<NetworkConnection>>> IPCClient::getNetwork() const {
  return getList(networkPath, &NetworkResponse::connections);
}

asio::awaitable<std::optional<InventoryData>> IPCClient::getInventory() const {
  return makeRequest<InventoryData>(inventoryPath, "GET");
}

template <class R, class List>
asio::awaitable<std::optional<List>> IPCClient::getList(std::string_view endpoint,
                                                        List R::*list) const {
  auto response = co_await makeRequest<R>(endpoint, "GET");
  if (!response) {
    co_return std::nullopt;
  }
  co_return std::move((*response).*list);
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

    // Named, because GCC 12 may destroy a temporary argument inside a co_await twice.
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
    // Such as `std::bad_alloc`. The caller gets no value for every kind of failure.
    co_return std::nullopt;
  }
}

}  // namespace quillmark
