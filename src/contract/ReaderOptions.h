#pragma once

namespace vlt::contract {

// Names of the plug-in data that a caller passes to the scene readers.

/// Path of the project file.
inline constexpr char ProjectDatum[] = "vlt.project";
/// Path of the terrain on which sites stand whose table has no ground height.
inline constexpr char TerrainDatum[] = "vlt.terrain";
/// "1" from a caller that only draws the scene.
inline constexpr char DrawnDatum[] = "vlt.drawn";
/// Address of a ReadProgress.
inline constexpr char ProgressDatum[] = "vlt.progress";

/// Callback with which a reader reports its progress. A plain struct, because it passes from one
/// module to another.
struct ReadProgress
{
    /// Receives the share that is done (0..1), on the thread that reads. It returns false to stop
    /// the reader, which then fails with the text StoppedText.
    bool (*report)(void *context, double share) = nullptr;
    void *context = nullptr;
};

inline constexpr char StoppedText[] = "stopped";

} // namespace vlt::contract
