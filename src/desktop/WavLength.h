#pragma once

#include <QString>

namespace tessarolyne {

// How long a WAV file sounds, in milliseconds, from its header; 0 if it isn't one.
int WavMilliseconds(const QString& path);

} // namespace tessarolyne
