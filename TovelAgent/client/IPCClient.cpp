// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/IPCClient.h"

#include <exception>
#include <utility>

#include <boost/url/parse.hpp>
#include <boost/url/url_view.hpp>

#include "client/AccessToken.h"
#include "client/HttpExchange.h"
#include "model/Codec.h"

namespace quillmark {
namespace {

namespace asio = boost::asio;

/// The parts of `url` that a request needs; no value if it is no URL that
/// names an IPv4 address and a port. No name is ever looked up.
std::optional<HttpRequest> requestTo(const std::string& url) {
  const auto parsed = boost::urls::parse_uri(url);
  if (!parsed || parsed->host_type() != boost::urls::host_type::ipv4 || !parsed->has_port()) {
    return std::nullopt;
  }
  HttpRequest request;
  request.server = {asio::ip::address_v4(parsed->host_ipv4_address().to_uint()),
                    parsed->port_number()};
  request.host = parsed->encoded_host_and_port();
  request.target = parsed->encoded_target();
  return request;
}

}  // namespace

IPCClient::IPCClient() { loadAuthToken(); }

void IPCClient::loadAuthToken() { authToken = readAccessToken(); }

asio::awaitable<std::optional<AgentStatus>> IPCClient::getStatus() const {
  return makeRequest<AgentStatus>("/api/status", "GET");
}

asio::awaitable<std::optional<std::vector<ThreatAlert>>> IPCClient::getAlerts() const {
  auto request = makeRequest<AlertsResponse>("/api/alerts", "GET");
  auto response = co_await std::move(request);
  if (!response) {
    co_return std::nullopt;
  }
  co_return std::move(response->alerts);
}

asio::awaitable<std::optional<std::vector<NetworkConnection>>> IPCClient::getNetwork() const {
  auto request = makeRequest<NetworkResponse>("/api/network", "GET");
  auto response = co_await std::move(request);
  if (!response) {
    co_return std::nullopt;
  }
  co_return std::move(response->connections);
}

asio::awaitable<std::optional<InventoryData>> IPCClient::getInventory() const {
  return makeRequest<InventoryData>("/api/inventory", "GET");
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

    const HttpLimits limits;
    auto exchanged = exchange(std::move(*request), limits);
    const auto body = co_await std::move(exchanged);
    if (!body) {
      co_return std::nullopt;
    }
    auto decoded = decode<R>(*body);
    if (!decoded) {
      co_return std::nullopt;
    }
    co_return std::move(*decoded);
  } catch (const std::exception&) {
    // Out of memory, or a token longer than any header field may be.
    co_return std::nullopt;
  }
}

}  // namespace quillmark
