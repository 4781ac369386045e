#pragma once

namespace sorvik {

/// Holds for the whole run, including static initialisation.
class processGuards {
public:
    /// Makes a failed allocation a fatal error, and holds the standard streams, so that messages
    /// neither go into results nor change on their way.
    processGuards();
};

} // namespace sorvik
