// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

/// What an action has to say to its user: a text for the left footer of a window, empty for nothing.
using Message = std::string;

/// A notify procedure: what a control calls when its user has acted on it. It reads the controls it needs
/// through the windows' accessors. The message that it returns is shown in the left footer of the control's
/// window, which is cleared before the call; a procedure that returns nothing leaves the footer alone.
template <typename... Arguments>
class Procedure {
  public:
    constexpr Procedure(std::nullptr_t = nullptr) {}
    constexpr Procedure(void (*silent)(Arguments...)) : silent_(silent) {}
    constexpr Procedure(Message (*answering)(Arguments...)) : answering_(answering) {}

    [[nodiscard]] constexpr bool answers() const { return answering_ != nullptr; }
    explicit constexpr operator bool() const { return silent_ != nullptr || answers(); }
    /// Its message; an empty one of a procedure that returns nothing.
    Message operator()(Arguments... arguments) const {
        if (answers()) {
            return answering_(arguments...);
        }
        if (silent_ != nullptr) {
            silent_(arguments...);
        }
        return {};
    }

  private:
    void (*silent_)(Arguments...) = nullptr;
    Message (*answering_)(Arguments...) = nullptr;
};

using Notify = Procedure<>;
