#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace lumigrafo {

/// What the speech engine reports, always on the thread that uses the voice.
struct EventiVoce {
    /// A text was taken. Comes inside Speak, before it returns: whoever asks next already finds the voice
    /// busy, however long the engine needs for its first sound.
    std::function<void()> StartStream;
    /// The voice fell silent: the text that was taken last is over. Comes from the event loop, never inside
    /// Speak.
    std::function<void()> EndStream;
    /// This machine has no speech engine, or lost it: texts are taken and nothing is heard. Reported once in
    /// a run, from the event loop.
    std::function<void()> Assente;
};

/// The speech engine. Each text that is taken is followed by exactly one EndStream, but for a text that
/// another one cuts off: the two share the EndStream of the second. A text that can't be heard, for want of
/// an engine, ends the same way. Only where the machine has an engine and no sound device may EndStream never
/// come.
class Voce {
public:
    /// Gets the descriptions of all voices, in the engine's order, and answers the number of the wanted one,
    /// from 0; nothing: the default voice, an Italian one where the machine has one. It may run on another
    /// thread and more than once, so it looks at its argument alone.
    using Scelta = std::function<std::optional<std::size_t>(const std::vector<std::string>& descrizioni)>;

    virtual ~Voce() = default;
    /// Starts the engine, once. Doesn't wait for it: texts that come before it is ready are spoken when it
    /// is.
    virtual void accendi(EventiVoce eventi, Scelta scelta) = 0;
    /// Speaks a text (UTF-8) at once and doesn't wait for its end; what is being spoken is cut off. `Rate`
    /// runs from -10 to 10 with 0 the engine's normal speed, `Volume` from 0 to 100; a value beyond counts as
    /// the nearest. Only after `accendi`.
    virtual void Speak(const std::string& testo, int Rate, int Volume) = 0;
};

} // namespace lumigrafo
