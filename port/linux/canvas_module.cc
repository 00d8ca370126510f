// The canvas as a module: who draws loads cairo, X11 and the font libraries, and who only writes texts does not.
#include <array>
#include <climits>
#include <dlfcn.h>
#include <link.h>
#include <string>

#include "port/cairo_canvas.h"
#include "port/log.h"
#include "port/never_destroyed.h"

namespace kzm::port {
namespace {

// The folder that this library was loaded from: an absolute path, wherever the process has gone since.
std::string ownFolder() {
  static const char kPlaceInThisLibrary{};
  std::array<char, PATH_MAX> folder{};
  Dl_info info{};
  void* library = nullptr;
  if (dladdr1(&kPlaceInThisLibrary, &info, &library, RTLD_DL_LINKMAP) != 0) {
    dlinfo(library, RTLD_DI_ORIGIN, folder.data());
  }
  return folder.data();
}

const Canvas& loaded() {
  const std::string path = ownFolder() + "/" KZM_CANVAS_MODULE;
  void* module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* function = module != nullptr ? dlsym(module, "kzmCairoCanvas") : nullptr;
  if (function != nullptr) return *reinterpret_cast<decltype(&kzmCairoCanvas)>(function)();
  systemLog().write("nothing will be drawn: " + path + " cannot be loaded");
  static const NeverDestroyed<Canvas> none;
  return *none;
}

}  // namespace

const Canvas& canvas() {
  static const Canvas& found = loaded();
  return found;
}

}  // namespace kzm::port
