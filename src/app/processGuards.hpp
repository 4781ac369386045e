#pragma once

namespace sorvik {

/// What holds for the whole run, static initialisation included.
class processGuards {
public:
    /// Lets an allocation that fails end the process with a fatal error, and holds the standard
    /// streams: messages must not go into results, nor change on their way.
    processGuards();
};

} // namespace sorvik
