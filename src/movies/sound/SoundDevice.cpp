// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/sound/SoundDevice.h"

#include <SDL.h>

#include <mutex>
#include <utility>

#include "movies/sound/SoundReader.h"

namespace velra {

namespace {

constexpr int kBlock = 1024;  // samples a channel: 21 ms

// The library has no lock of its own, and two movies may open at once.
std::mutex& libraryGate() {
  static std::mutex gate;
  return gate;
}

int libraryUsers = 0;  // guarded by the gate

// Only the sound is opened: the library's common way in also looks for the desktop's message bus,
// and for that starts a process amid our threads and waits for it without a bound.
bool enterLibrary() {
  if (libraryUsers == 0 && SDL_AudioInit(nullptr) != 0) return false;
  ++libraryUsers;
  return true;
}

void leaveLibrary() {
  if (--libraryUsers == 0) SDL_AudioQuit();
}

}  // namespace

SoundDevice::SoundDevice(Fill fill) : fill_(std::move(fill)) {}

SoundDevice::~SoundDevice() {
  const std::lock_guard lock(libraryGate());
  if (device_ != 0) SDL_CloseAudioDevice(device_);
  if (inited_) leaveLibrary();
  SDL_TLSCleanup();  // what the library keeps for a thread that it did not make
}

bool SoundDevice::open() {
  const std::lock_guard lock(libraryGate());
  inited_ = inited_ || enterLibrary();
  if (!inited_) return false;
  SDL_AudioSpec wanted{};
  wanted.freq = SoundReader::kRate;
  wanted.format = AUDIO_S16SYS;
  wanted.channels = SoundReader::kChannels;
  wanted.samples = kBlock;
  wanted.callback = &SoundDevice::fetch;
  wanted.userdata = this;
  device_ = SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
  return device_ != 0;
}

void SoundDevice::pause(bool paused) {
  SDL_PauseAudioDevice(device_, paused ? 1 : 0);
}

void SoundDevice::fetch(void* self, std::uint8_t* bytes, int length) {
  const auto count = static_cast<std::size_t>(length) / sizeof(std::int16_t);
  static_cast<SoundDevice*>(self)->fill_(reinterpret_cast<std::int16_t*>(bytes), count);
}

}  // namespace velra
