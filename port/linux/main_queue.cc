// The main queue on GLib's default main context.
#include "port/main_queue.h"

#include <atomic>
#include <glib-unix.h>
#include <glib.h>
#include <sys/eventfd.h>
#include <utility>

#include "port/never_destroyed.h"

namespace kzm::port {
namespace {

using Action = MainQueue::Action;

constexpr std::int64_t kNanosecondsPerMicrosecond = 1000;

gboolean run(gpointer data) noexcept {
  (*static_cast<Action*>(data))();
  return G_SOURCE_CONTINUE;
}

gboolean runOnce(gpointer data) noexcept {
  (*static_cast<Action*>(data))();
  return G_SOURCE_REMOVE;
}

gboolean dispatch(GSource*, GSourceFunc callback, gpointer data) { return callback(data); }

struct Unref {
  void operator()(GSource* source) const { g_source_unref(source); }
};
using Source = std::unique_ptr<GSource, Unref>;

// A source of no type of its own: it is ready by its time or by its descriptor alone.
Source makeSource(GSourceFunc callback, Action action) {
  static GSourceFuncs functions{nullptr, nullptr, dispatch, nullptr, nullptr, nullptr};
  auto held = std::make_unique<Action>(std::move(action));
  Source source(g_source_new(&functions, sizeof(GSource)));
  g_source_set_callback(source.get(), callback, held.release(),
                        [](gpointer data) { std::unique_ptr<Action>(static_cast<Action*>(data)).reset(); });
  return source;
}

// Rounded up: never too early.
std::int64_t readyTime(std::int64_t nanoseconds) {
  const std::int64_t rest = nanoseconds % kNanosecondsPerMicrosecond > 0 ? 1 : 0;
  return g_get_monotonic_time() + nanoseconds / kNanosecondsPerMicrosecond + rest;
}

// Nothing can fail once the source is attached: one that nobody holds would look at the descriptor forever.
class DescriptorWatch final : public MainQueue::Watch {
 public:
  DescriptorWatch(int descriptor, Action action) : source_(makeSource(run, std::move(action))) {
    g_source_add_unix_fd(source_.get(), descriptor, G_IO_IN);
    g_source_attach(source_.get(), nullptr);
  }
  ~DescriptorWatch() override { g_source_destroy(source_.get()); }

 private:
  Source source_;
};

class GlibMainQueue final : public MainQueue {
 public:
  // The context opens a descriptor when somebody first asks for it, and keeps it. Nobody knows whether the host has
  // asked; so until we have done so, a place is kept, perhaps for nothing.
  std::optional<FileHandle> keepPlace() override {
    if (isOpen_.load(std::memory_order_acquire)) return std::nullopt;
    return FileHandle::adopt(::eventfd(0, EFD_CLOEXEC));
  }

  void open(const std::optional<FileHandle>& place) override {
    if (place) place->close();
    g_main_context_default();
    isOpen_.store(true, std::memory_order_release);
  }

  void after(std::int64_t nanoseconds, Action action) override {
    const Source source = makeSource(runOnce, std::move(action));
    g_source_set_ready_time(source.get(), nanoseconds > 0 ? readyTime(nanoseconds) : 0);
    g_source_attach(source.get(), nullptr);
  }

  std::unique_ptr<Watch> whenReadable(int descriptor, Action action) override {
    return std::make_unique<DescriptorWatch>(descriptor, std::move(action));
  }

 private:
  std::atomic<bool> isOpen_{false};
};

}  // namespace

MainQueue& mainQueue() {
  static NeverDestroyed<GlibMainQueue> queue;
  return *queue;
}

}  // namespace kzm::port
