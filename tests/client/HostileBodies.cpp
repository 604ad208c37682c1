// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string_view>

#include "client/HostileAnswers.h"
#include "support/Backend.h"

namespace quillmark::test {
namespace {

using namespace std::string_literals;
using enum HostileAnswer::Yields;
using Answers = std::vector<HostileAnswer>;

const std::string statusLine = "HTTP/1.1 200 OK\r\n";

/// A 200 answer that has only these fields, which determine its framing.
HostileAnswer framed(const std::string& fields, const std::string& rest,
                     HostileAnswer::Yields yields) {
  return {fields + " " + rest.substr(0, 20), statusLine + fields + "\r\n\r\n" + rest, yields};
}

std::string wide(const std::string& text) {
  std::string result;
  for (const char c : text) {
    result += {c, '\0'};
  }
  return result;
}

}  // namespace

Answers answersInEveryFraming(const std::string& body) {
  const std::string length = std::to_string(body.size());
  const std::string longer = std::to_string(body.size() + 1);
  const std::string shorter = std::to_string(body.size() - 1);
  std::string size;
  for (auto rest = body.size(); rest > 0; rest /= 16) {
    size.insert(size.begin(), "0123456789abcdef"[rest % 16]);
  }
  const std::string chunk = size + "\r\n" + body + "\r\n";
  const std::string chunked = "Transfer-Encoding: chunked";
  const std::string end = "0\r\n\r\n";
  return {
      framed("Content-Length: " + length, body, theRecord),
      framed("Content-Length: " + length, body + "and more", theRecord),
      framed("Content-Length: 000" + length, body, theRecord),
      framed("Content-Length: " + longer, body, nothing),
      framed("Content-Length: " + shorter, body, nothing),
      framed("Content-Length: 0", body, nothing),
      framed("Content-Length: -" + length, body, nothing),
      framed("Content-Length: +" + length, body, nothing),
      framed("Content-Length: 0x70", body, nothing),
      framed("Content-Length: ", body, nothing),
      framed("Content-Length: 18446744073709551615", body, nothing),
      framed("Content-Length: 99999999999999999999", body, nothing),
      framed("Content-Length: " + length + "\r\nContent-Length: " + longer, body, nothing),
      framed("Content-Length: " + length + ", " + longer, body, nothing),
      framed("Content-Length: " + length + "\r\n" + chunked, body, nothing),
      framed(chunked + "\r\nContent-Length: " + length, chunk + end, nothing),
      framed("X: y", body, theRecord),
      framed(chunked, chunk + end, theRecord),
      framed(chunked, "00000" + chunk + "000\r\n\r\n", theRecord),
      framed(chunked, size + ";a=b;c=\"d\"\r\n" + body + "\r\n" + end, theRecord),
      framed(chunked, chunk + "0\r\nX-Trailer: y\r\nSet-Cookie: a=b\r\n\r\n", theRecord),
      framed(chunked, chunk + end + "and more", theRecord),
      framed(chunked, chunk, nothing),
      framed(chunked, chunk + "0\r\n", nothing),
      framed(chunked, chunk + "0\r\nno colon\r\n\r\n", nothing),
      framed(chunked, body, nothing),
      framed(chunked, end + chunk, nothing),
      framed(chunked, "x\r\n" + body + "\r\n" + end, nothing),
      framed(chunked, "-" + chunk + end, nothing),
      framed(chunked, "+" + chunk + end, nothing),
      framed(chunked, "0x" + chunk + end, nothing),
      framed(chunked, " " + chunk + end, nothing),
      framed(chunked, "\r\n" + chunk + end, nothing),
      framed(chunked, "1" + chunk + end, nothing),
      framed(chunked, "1\r\n" + body + "\r\n" + end, nothing),
      framed(chunked, "fffffffffffffffff\r\n" + body + "\r\n" + end, nothing),
      framed(chunked, "ffffffffffffffff\r\n" + body + "\r\n" + end, nothing),
      framed(chunked, size + "\n" + body + "\n0\n\n", nothing),
      framed(chunked, size + "\r\n" + body + end, nothing),
      framed("Transfer-Encoding: gzip, chunked", chunk + end, theRecord),
      framed("Transfer-Encoding: chunked, gzip", chunk + end, nothing),
      {"bare line feeds", "HTTP/1.1 200 OK\nContent-Length: " + length + "\n\n" + body, nothing},
      {"bare returns", "HTTP/1.1 200 OK\rContent-Length: " + length + "\r\r" + body, nothing},
  };
}

Answers answersInEveryEncoding(const std::string& body) {
  return {
      {"UTF-16 with a mark", okAnswer("\xFF\xFE" + wide(body)), nothing},
      {"Windows line ends", okAnswer("\r\n" + body + "\r\n"), theRecord},
      {"gzip",
       answer("200 OK", "\x1F\x8B\x08\0\0\0\0\0\0\x03\x4B\x04\0"s, "Content-Encoding: gzip\r\n"),
       nothing},
      {"two bodies", okAnswer(body + body), nothing},
      {"nested too deeply", okAnswer(repeated(100'000, R"({"a":)")), nothing},
      {"more than 64 MiB", okAnswer(body + std::string(std::size_t{64} << 20, ' ')), nothing},
      {"only spaces", okAnswer(std::string(1'000'000, ' ')), nothing},
      {"many keys", okAnswer('{' + repeated(200'000, R"("k":0,)") + body.substr(1)), theRecord},
  };
}

}  // namespace quillmark::test
