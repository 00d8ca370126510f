#include "port/now.h"

#include <atomic>
#include <chrono>

namespace kzm::port {
namespace {

double systemNow() {
  return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
}

std::atomic<NowFunction> nowInForce{systemNow};

}  // namespace

double now() { return nowInForce.load()(); }

void replaceNow(NowFunction function) { nowInForce.store(function != nullptr ? function : systemNow); }

}  // namespace kzm::port
