#pragma once

namespace lumenkit {

/// Puts `value` with `put` unless `get` gives it already: a real window repaints for every put,
/// also for one of the same value. `get` and `put` are member functions of the target.
template <typename Target, typename Get, typename Put, typename New>
void PutIfDifferent(Target& target, Get get, Put put, const New& value) {
    if ((target.*get)() != value) {
        (target.*put)(value);
    }
}

}  // namespace lumenkit
