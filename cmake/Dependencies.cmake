# SPDX-License-Identifier: GPL-3.0-or-later
# Everything that comes from outside, in one place; ./run and ./test install it.
find_package(PkgConfig REQUIRED)
find_package(LibXml2 REQUIRED)
find_package(ICU REQUIRED COMPONENTS uc i18n)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Svg LinguistTools)
find_package(SQLite3 REQUIRED)
find_package(PostgreSQL REQUIRED)
find_package(nlohmann_json REQUIRED)
find_package(tsl-robin-map REQUIRED)
find_package(Threads REQUIRED)

pkg_check_modules(LIBAV REQUIRED IMPORTED_TARGET libavformat libavcodec libavutil libswscale
                  libswresample libavfilter)
pkg_check_modules(SDL2 REQUIRED IMPORTED_TARGET sdl2)

if(VELRA_TESTS)
  find_package(GTest REQUIRED)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
endif()

if(VELRA_BENCH)
  find_package(benchmark REQUIRED)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
  pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb)
endif()
