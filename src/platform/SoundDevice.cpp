#include "platform/SoundDevice.h"

#include <SDL.h>

#include <mutex>
#include <utility>

#include "platform/SoundReader.h"

namespace velra {

namespace {

constexpr int kBlock = 1024;  // samples a channel: 21 ms

// The library counts its users without a lock, and two movies may open at once.
std::mutex& libraryGate() {
  static std::mutex gate;
  return gate;
}

}  // namespace

SoundDevice::SoundDevice(Fill fill) : fill_(std::move(fill)) {}

SoundDevice::~SoundDevice() {
  const std::lock_guard lock(libraryGate());
  if (device_ != 0) SDL_CloseAudioDevice(device_);
  if (inited_) SDL_QuitSubSystem(SDL_INIT_AUDIO);
  SDL_TLSCleanup();  // what the library keeps for a thread that it did not make
}

bool SoundDevice::open() {
  const std::lock_guard lock(libraryGate());
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  inited_ = inited_ || SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
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
