#pragma once

#include <map>
#include <string>

class reader;
class waveModel;

/// Makes wave models by the names of their types.
///
/// A further model needs one more entry in `makeRegistry`.
class waveFactory {
public:
    /// Makes a new model, owned by the caller.
    using maker = waveModel* (*)(reader&);

    /// The models by type name, complete before `main` starts.
    static std::map<std::string, maker>& getRegistry();
    /// Enters the models of this program; returns true.
    static bool makeRegistry();

    /// A new model, owned by the caller, of the type under the key "environment.wave.type"; still
    /// water where there is none. A type that is not registered ends the process with status 1.
    static waveModel* create(reader& config);
};

/// Makes models of the type T.
template <class T>
struct waveMaker {
    /// A new model, owned by the caller.
    static waveModel* create(reader& config) { return new T(config); }
};
