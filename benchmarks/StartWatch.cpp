// SPDX-License-Identifier: GPL-3.0-or-later
#include "StartWatch.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <xcb/xcb.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <set>
#include <thread>

namespace velra::bench {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kSmallestWindow = 400;
constexpr std::chrono::milliseconds kBetweenLooks{1};
constexpr std::chrono::seconds kPatience{15};
constexpr std::chrono::seconds kPatienceWithEnd{3};

// Frames and empty lists have fewer.
constexpr std::size_t kColours = 6;

struct Release {
  void operator()(void* reply) const { std::free(reply); }
  void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

template <class Reply>
using Owned = std::unique_ptr<Reply, Release>;

class Windows {
 public:
  explicit Windows(const std::string& display)
      : connection_(xcb_connect(display.c_str(), nullptr)),
        root_(xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root) {}

  // Asks the server, since a window may come and go between two looks.
  bool anyIsPainted() {
    const Owned<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection_.get(), xcb_query_tree(connection_.get(), root_), nullptr));
    if (!tree) return false;
    const xcb_window_t* windows = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
      if (isPainted(windows[i])) return true;
    }
    return false;
  }

 private:
  bool isPainted(xcb_window_t window) {
    xcb_connection_t* server = connection_.get();
    const Owned<xcb_get_geometry_reply_t> place(
        xcb_get_geometry_reply(server, xcb_get_geometry(server, window), nullptr));
    if (!place || place->width < kSmallestWindow || place->height < kSmallestWindow) return false;
    const auto quarter = static_cast<std::uint16_t>(place->height / 4);
    // Refused for a window that does not show yet.
    const Owned<xcb_get_image_reply_t> image(
        xcb_get_image_reply(server,
                            xcb_get_image(server, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0,
                                          static_cast<std::int16_t>(quarter), place->width,
                                          static_cast<std::uint16_t>(quarter * 2), ~0U),
                            nullptr));
    return image && hasColours(*image);
  }

  static bool hasColours(const xcb_get_image_reply_t& image) {
    std::set<std::uint32_t> colours;
    const std::uint8_t* bytes = xcb_get_image_data(&image);
    const auto length = static_cast<std::size_t>(xcb_get_image_data_length(&image));
    std::uint32_t colour = 0;
    for (std::size_t at = 0; at + sizeof colour <= length; at += sizeof colour) {
      std::memcpy(&colour, bytes + at, sizeof colour);
      if (colours.insert(colour).second && colours.size() == kColours) return true;
    }
    return false;
  }

  Owned<xcb_connection_t> connection_;
  xcb_window_t root_;
};

std::vector<char*> pointersTo(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

void end(pid_t program) {
  ::kill(program, SIGTERM);
  const auto last = Clock::now() + kPatienceWithEnd;
  while (::waitpid(program, nullptr, WNOHANG) == 0) {
    if (Clock::now() > last) ::kill(program, SIGKILL);
    std::this_thread::sleep_for(kBetweenLooks);
  }
}

}  // namespace

std::optional<double> timeToWindow(const std::string& display,
                                   const std::vector<std::string>& command,
                                   const std::vector<std::string>& environment) {
  Windows windows(display);
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  const auto start = Clock::now();
  pid_t program = 0;
  const int failed = ::posix_spawnp(&program, command.front().c_str(), &actions, nullptr,
                                    pointersTo(command).data(), pointersTo(environment).data());
  ::posix_spawn_file_actions_destroy(&actions);
  if (failed != 0) return std::nullopt;
  std::optional<double> spent;
  while (!spent && Clock::now() - start < kPatience) {
    std::this_thread::sleep_for(kBetweenLooks);
    if (windows.anyIsPainted()) {
      spent = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    }
  }
  end(program);
  return spent;
}

}  // namespace velra::bench
