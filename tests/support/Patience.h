#pragma once

/// How long a test waits for something that is sure to come: on a busy machine it may take long.
constexpr int PatienceMs = 120000;
