#pragma once

/// Maximum wait of a test for an event that is sure to happen; a busy machine may be slow.
constexpr int PatienceMs = 120000;
