// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/MovieModule.h"

#include <dlfcn.h>

#include <atomic>
#include <filesystem>
#include <system_error>
#include <thread>

#include "platform/movie/MovieLibrary.h"
#include "platform/movie/NoMovies.h"

namespace velra {

namespace {

// It lies beside the program where it was built, and in a folder of its own where it is installed.
std::string moduleFile() {
  std::error_code failed;
  const std::filesystem::path folder =
      std::filesystem::read_symlink("/proc/self/exe", failed).parent_path();
  std::filesystem::path file = folder / VELRA_MOVIE_MODULE;
  if (!std::filesystem::exists(file, failed)) {
    file = folder / VELRA_MOVIE_MODULE_FOLDER / VELRA_MOVIE_MODULE;
  }
  return file.lexically_normal();
}

std::atomic<bool>& loadingAhead() {
  static std::atomic<bool> loading = false;
  return loading;
}

MovieLibrary& loadMovieLibrary() {
  std::string reason;
  if (auto* const library = loadMovieModule(moduleFile(), VELRA_VERSION, reason)) return *library;
  static NoMovies none(reason);
  return none;
}

}  // namespace

MovieLibrary* loadMovieModule(const std::string& file, const std::string& version,
                              std::string& reason) {
  // Functions are looked for when they are first called, as far as the libraries allow it.
  void* const module = ::dlopen(file.c_str(), RTLD_LAZY | RTLD_LOCAL);
  void* const entry = module ? ::dlsym(module, kMovieEntry) : nullptr;
  if (!entry) {
    reason =
        std::string(::dlerror()) + ": The part of the program that reads movies cannot be loaded.";
    return nullptr;
  }
  MovieLibrary* const library = reinterpret_cast<MovieEntry>(entry)(version.c_str());
  if (!library) {
    reason = file + ": The part of the program that reads movies belongs to another version.";
  }
  return library;
}

MovieLibrary& movieLibrary() {
  static MovieLibrary& library = loadMovieLibrary();
  return library;
}

void loadMoviesAhead() {
  loadingAhead() = true;
  std::thread([] {
    movieLibrary();
    loadingAhead() = false;
  }).detach();
}

bool areMoviesLoading() {
  return loadingAhead();
}

}  // namespace velra
