#pragma once

namespace vlt::contract {

/// What a caller hands to the scene readers, as data of the plug-ins by these names: the path of
/// the project file, "1" for the surface of the terrain under a scene that knows one, "1" from a
/// caller that does nothing with the scene but draw it, and the address of a ReadProgress.
inline constexpr char ProjectDatum[] = "vlt.project";
inline constexpr char TerrainDatum[] = "vlt.terrain";
inline constexpr char DrawnDatum[] = "vlt.drawn";
inline constexpr char ProgressDatum[] = "vlt.progress";

/// How a reader tells how far it is. Plain, for it goes from one module to another.
struct ReadProgress
{
    /// Takes the share that is done (0..1), on the thread that reads; false stops the reader, which
    /// then fails with the text StoppedText.
    bool (*report)(void *context, double share) = nullptr;
    void *context = nullptr;
};

inline constexpr char StoppedText[] = "stopped";

} // namespace vlt::contract
