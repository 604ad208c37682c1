// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "poll/Floor.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <boost/json/parse.hpp>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include "support/Backend.h"

namespace quillmark::bench {
namespace {

std::string exchange(const std::string& target) {
  const int connection = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(test::Backend::agentPort);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (connect(connection, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
    std::abort();
  }
  const std::string request = "GET " + target + " HTTP/1.1\r\nHost: 127.0.0.1:7823\r\n\r\n";
  if (send(connection, request.data(), request.size(), 0) < 0) {
    std::abort();
  }
  std::string answer;
  constexpr std::size_t readSize = 65536;
  for (;;) {
    const auto before = answer.size();
    answer.resize(before + readSize);
    const auto count = recv(connection, answer.data() + before, readSize, 0);
    answer.resize(before + static_cast<std::size_t>(count > 0 ? count : 0));
    if (count <= 0) {
      break;
    }
  }
  close(connection);
  return answer;
}

}  // namespace

std::size_t leastPoll(std::span<const std::string> targets) {
  std::size_t bytes = 0;
  for (const auto& target : targets) {
    const auto answer = exchange(target);
    const auto body = std::string_view(answer).substr(answer.find("\r\n\r\n") + 4);
    bytes += boost::json::parse({body.data(), body.size()}).is_object() ? body.size() : 0;
  }
  return bytes;
}

}  // namespace quillmark::bench
