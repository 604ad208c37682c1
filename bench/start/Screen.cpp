// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Screen.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <span>
#include <vector>

#include <poll.h>

namespace quillmark::bench {
namespace {

constexpr std::uint16_t minSide = 200;
constexpr std::size_t minTextColours = 8;
constexpr std::int16_t rowStep = 6;  // less than the height of any text

/// Frees what xcb allocated for the caller.
struct Free {
  void operator()(void* memory) const { std::free(memory); }
};

template <class T>
std::unique_ptr<T, Free> owned(T* memory) {
  return std::unique_ptr<T, Free>(memory);
}

void addColours(const xcb_get_image_reply_t& image, std::set<std::uint32_t>& colours) {
  const auto* const bytes = xcb_get_image_data(&image);
  const auto size = static_cast<std::size_t>(xcb_get_image_data_length(&image));
  for (std::size_t at = 0; at + 4 <= size && colours.size() < minTextColours; at += 4) {
    colours.insert(std::uint32_t{bytes[at]} | std::uint32_t{bytes[at + 1]} << 8U |
                   std::uint32_t{bytes[at + 2]} << 16U);
  }
}

}  // namespace

Screen::Screen() : connection_(xcb_connect(nullptr, nullptr), xcb_disconnect) {
  auto* const connection = connection_.get();
  if (xcb_connection_has_error(connection) != 0) {
    std::fputs("no display\n", stderr);
    std::exit(1);
  }
  root_ = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  const auto version = owned(xcb_damage_query_version_reply(
      connection, xcb_damage_query_version(connection, 1, 1), nullptr));
  damage_ = xcb_generate_id(connection);
  xcb_damage_create(connection, damage_, root_, XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
  xcb_flush(connection);
}

bool Screen::waitForDrawing(std::chrono::milliseconds patience) {
  auto* const connection = connection_.get();
  pollfd descriptor{xcb_get_file_descriptor(connection), POLLIN, 0};
  bool drawn = false;
  while (!drawn) {
    while (const auto event = owned(xcb_poll_for_event(connection))) {
      drawn = true;
    }
    if (!drawn && poll(&descriptor, 1, static_cast<int>(patience.count())) <= 0) {
      return false;
    }
  }
  xcb_damage_subtract(connection, damage_, XCB_NONE, XCB_NONE);
  xcb_flush(connection);
  return true;
}

bool Screen::showsAWindow() const {
  auto* const connection = connection_.get();
  const auto tree =
      owned(xcb_query_tree_reply(connection, xcb_query_tree(connection, root_), nullptr));
  const std::span windows(xcb_query_tree_children(tree.get()),
                          static_cast<std::size_t>(xcb_query_tree_children_length(tree.get())));
  for (const auto window : windows) {
    if (isPainted(window)) {
      return true;
    }
  }
  return false;
}

bool Screen::isPainted(xcb_window_t window) const {
  auto* const connection = connection_.get();
  const auto attributes = owned(xcb_get_window_attributes_reply(
      connection, xcb_get_window_attributes(connection, window), nullptr));
  const auto box =
      owned(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
  if (attributes == nullptr || attributes->map_state != XCB_MAP_STATE_VIEWABLE || box == nullptr ||
      box->width < minSide || box->height < minSide) {
    return false;
  }
  // Reads only some rows, all requested at once: while the display server copies a
  // whole window, the program cannot draw.
  std::vector<xcb_get_image_cookie_t> rows;
  for (std::int16_t y = 0; y < box->height; y += rowStep) {
    rows.push_back(
        xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, y, box->width, 1, ~0U));
  }
  std::set<std::uint32_t> colours;
  for (const auto row : rows) {
    if (const auto image = owned(xcb_get_image_reply(connection, row, nullptr))) {
      addColours(*image, colours);
    }
  }
  return colours.size() >= minTextColours;
}

}  // namespace quillmark::bench
