// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sample-agent/RawClient.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <thread>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include "support/Patience.h"

namespace quillmark::sample::test {
RawClient::RawClient(std::uint16_t port)
    : descriptor_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  const timeval patience{quillmark::test::patience().count(), 0};
  setsockopt(descriptor_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
  setsockopt(descriptor_, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  connected_ =
      connect(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

RawClient::~RawClient() { close(descriptor_); }

bool RawClient::send(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t count = ::send(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (count <= 0) {
      return false;
    }
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

std::optional<std::string> RawClient::receiveAll(std::chrono::milliseconds rest) const {
  std::string bytes;
  std::array<char, 65536> block;
  for (;;) {
    const ssize_t count = recv(descriptor_, block.data(), block.size(), 0);
    if (count == 0 || (count < 0 && errno == ECONNRESET)) {
      return bytes;
    }
    if (count < 0) {
      return std::nullopt;
    }
    bytes.append(block.data(), static_cast<std::size_t>(count));
    std::this_thread::sleep_for(rest);
  }
}

std::string RequestText::text() const {
  return method + ' ' + target + " HTTP/1.1\r\nHost: " + host + "\r\nX-Agent-Token: " + token +
         "\r\n" + moreFields + "\r\n" + body;
}

std::string ask(std::uint16_t port, std::string_view request) {
  const RawClient client(port);
  if (!client.isConnected() || !client.send(request)) {
    return {};
  }
  return client.receiveAll().value_or("");
}

int statusOf(std::string_view answer) {
  constexpr std::string_view start = "HTTP/1.1 ";
  return answer.starts_with(start) ? std::atoi(std::string(answer.substr(start.size(), 3)).c_str())
                                   : 0;
}

std::string bodyOf(std::string_view answer) {
  constexpr std::string_view blankLine = "\r\n\r\n";
  const std::size_t end = answer.find(blankLine);
  return end == std::string_view::npos ? "" : std::string(answer.substr(end + blankLine.size()));
}

}  // namespace quillmark::sample::test
