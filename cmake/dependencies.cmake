# What the libraries need. The installed package looks for the same when the libraries are static ones.
find_package(ICU 72 REQUIRED COMPONENTS uc i18n)
find_package(nlohmann_json REQUIRED)
find_package(Threads REQUIRED)
find_package(CCTZ REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(KZM_GLIB REQUIRED IMPORTED_TARGET glib-2.0)
pkg_check_modules(KZM_CAIRO REQUIRED IMPORTED_TARGET cairo)
