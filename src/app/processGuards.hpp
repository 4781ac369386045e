#pragma once

/// What holds for the whole run, static initialisation included.
class processGuards {
public:
    /// Lets an allocation that fails end the process with a fatal error, and keeps the numbers of
    /// closed standard streams from being given to files: messages would go into results.
    processGuards();
};
