#pragma once

namespace lumenkit {

/// Calls `put` with `value` unless `get` already returns it: a real window repaints on every
/// assignment, even of the same value. `get` and `put` are member functions of the target.
template <typename Target, typename Get, typename Put, typename New>
void PutIfDifferent(Target& target, Get get, Put put, const New& value) {
    if ((target.*get)() != value) {
        (target.*put)(value);
    }
}

}  // namespace lumenkit
