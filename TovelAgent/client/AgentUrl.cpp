// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/AgentUrl.h"

#include <boost/url/parse.hpp>
#include <boost/url/url_view.hpp>

namespace quillmark {

std::optional<HttpRequest> requestTo(const std::string& url) {
  const auto parsed = boost::urls::parse_uri(url);
  if (!parsed || parsed->host_type() != boost::urls::host_type::ipv4 || !parsed->has_port()) {
    return std::nullopt;
  }
  HttpRequest request;
  request.server = {boost::asio::ip::address_v4(parsed->host_ipv4_address().to_uint()),
                    parsed->port_number()};
  request.host = parsed->encoded_host_and_port();
  request.target = parsed->encoded_target();
  return request;
}

}  // namespace quillmark
