// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillmark::sample::test {

/// One TCP connection to a port of this machine. Sending and receiving time out after
/// `patience()`.
class RawClient final {
 public:
  explicit RawClient(std::uint16_t port);
  ~RawClient();
  RawClient(const RawClient&) = delete;
  RawClient& operator=(const RawClient&) = delete;

  [[nodiscard]] bool isConnected() const { return connected_; }
  /// False if the other side has closed the connection.
  bool send(std::string_view bytes) const;
  /// Everything until the other side ends the connection; no value if it does not end
  /// it. Pauses for `rest` between two reads.
  [[nodiscard]] std::optional<std::string> receiveAll(
      std::chrono::milliseconds rest = std::chrono::milliseconds::zero()) const;

 private:
  int descriptor_;
  bool connected_;
};

/// A request as a good client sends it.
struct RequestText {
  std::string method = "GET";
  std::string target = "/api/status";
  std::string host = "127.0.0.1:7823";
  std::string token;
  std::string moreFields;  ///< each with its line break
  std::string body;

  [[nodiscard]] std::string text() const;
};

/// Sends `request` over a new connection; the answer is empty if the connection fails.
[[nodiscard]] std::string ask(std::uint16_t port, std::string_view request);

/// The three digits after "HTTP/1.1 ", or 0.
[[nodiscard]] int statusOf(std::string_view answer);
/// What follows the blank line.
[[nodiscard]] std::string bodyOf(std::string_view answer);

}  // namespace quillmark::sample::test
