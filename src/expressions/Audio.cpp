#include "expressions/Audio.h"

namespace velra {

// The link to a transcript, hasaudiotranscript, is no part of the names that follow a rename.
Audio::Audio(ApplicationModule& app)
    : ExpressionBase(app, "Audio", {"versionguid", "followedbyaudio", "partofaudio"}) {}

Audio::~Audio() = default;

}  // namespace velra
