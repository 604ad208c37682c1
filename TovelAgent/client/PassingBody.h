// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include <boost/asio/buffer.hpp>
#include <boost/beast/core/buffers_range.hpp>
#include <boost/beast/http/message.hpp>
#include <boost/optional/optional.hpp>
#include <boost/system/error_code.hpp>

#include "client/HttpExchange.h"

namespace quillmark {

/// A body that a message parser keeps nothing of: it is passed on as it comes.
struct PassingBody {
  /// To whom; never null while a body is read.
  using value_type = const BodySink*;

  /// What the parser calls, in this order.
  class reader {
   public:
    template <bool isRequest, class Fields>
    reader(boost::beast::http::header<isRequest, Fields>& /*header*/, value_type& sink)
        : sink_(sink) {}

    void init(const boost::optional<std::uint64_t>& length, boost::system::error_code& error) {
      if (length) {
        left_ = static_cast<std::size_t>(*length);
      }
      error = {};
    }

    template <class Buffers>
    std::size_t put(const Buffers& buffers, boost::system::error_code& error) {
      std::size_t count = 0;
      for (const auto buffer : boost::beast::buffers_range_ref(buffers)) {
        count += buffer.size();
        if (left_) {
          *left_ -= buffer.size();
        }
        (*sink_)({static_cast<const char*>(buffer.data()), buffer.size()}, left_);
      }
      error = {};
      return count;
    }

    void finish(boost::system::error_code& error) { error = {}; }

   private:
    value_type& sink_;
    std::optional<std::size_t> left_;
  };
};

}  // namespace quillmark
