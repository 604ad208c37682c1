// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scan/Risk.h"

namespace quillmark::sample {
namespace {

bool isCleartextService(const Socket& socket) {
  return socket.transport == Transport::tcp && !cleartextService(socket.local.port).empty();
}

}  // namespace

std::string_view cleartextService(std::uint16_t port) {
  switch (port) {
    case 21:
      return "FTP";
    case 23:
      return "Telnet";
    case 512:
      return "rexec";
    case 513:
      return "rlogin";
    case 514:
      return "rsh or syslog";
    default:
      return {};
  }
}

bool isExposedCleartextService(const Socket& socket) {
  return isListening(socket) && isCleartextService(socket) &&
         reachOf(socket) == Reach::allInterfaces;
}

std::string_view riskLevel(const Socket& socket) {
  if (isExposedCleartextService(socket)) {
    return "high";
  }
  const Reach reach = reachOf(socket);
  const bool exposed =
      reach == Reach::allInterfaces || (reach == Reach::oneAddress && isCleartextService(socket));
  return isListening(socket) && exposed ? "medium" : "low";
}

}  // namespace quillmark::sample
