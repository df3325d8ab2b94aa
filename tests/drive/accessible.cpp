// SPDX-License-Identifier: MIT
#include "tests/drive/accessible.h"

#include "tests/support/wait_until.h"

#include <algorithm>
#include <utility>

#include <atspi/atspi.h>

namespace {

/// Takes a reference that libatspi has given.
template <typename Object>
std::shared_ptr<Object> owned(Object* object) {
    return {object, [](Object* given) {
                if (given != nullptr) {
                    g_object_unref(given);
                }
            }};
}

/// Collects the error of a call and drops it: whoever asks sees it in the empty answer.
class Ignored {
  public:
    Ignored() = default;
    ~Ignored() { g_clear_error(&error_); }
    Ignored(const Ignored&) = delete;
    Ignored& operator=(const Ignored&) = delete;
    operator GError**() { return &error_; }

  private:
    GError* error_ = nullptr;
};

std::string taken(gchar* text) {
    std::string result = text == nullptr ? "" : text;
    g_free(text);
    return result;
}

AtspiAccessible* accessible(const std::shared_ptr<void>& object) {
    return static_cast<AtspiAccessible*>(object.get());
}

/// The root of the bus. A program's answers are never kept: they are asked for while it changes.
AtspiAccessible* desktop() {
    static AtspiAccessible* const root = [] {
        constexpr int milliseconds = 20'000;  // a program may be busy, and under a sanitizer slow
        atspi_init();
        atspi_set_timeout(milliseconds, milliseconds);
        AtspiAccessible* made = atspi_get_desktop(0);
        atspi_accessible_set_cache_mask(made, ATSPI_CACHE_NONE);
        return made;
    }();
    return root;
}

std::string text_between(AtspiAccessible* object, int first_from_end) {
    const auto text = owned(atspi_accessible_get_text_iface(object));
    if (text == nullptr) {
        return {};
    }
    const int count = atspi_text_get_character_count(text.get(), Ignored());
    const int begin = first_from_end < 0 ? 0 : std::max(0, count - first_from_end);
    return taken(atspi_text_get_text(text.get(), begin, count, Ignored()));
}

}  // namespace

Accessible Accessible::application(pid_t process) {
    const int count = atspi_accessible_get_child_count(desktop(), Ignored());
    for (int i = 0; i < count; ++i) {
        const auto child = owned(atspi_accessible_get_child_at_index(desktop(), i, Ignored()));
        if (child != nullptr &&
            atspi_accessible_get_process_id(child.get(), Ignored()) == static_cast<guint>(process)) {
            return Accessible(child);
        }
    }
    return {};
}

std::string Accessible::name() const {
    return object_ ? taken(atspi_accessible_get_name(accessible(object_), Ignored())) : std::string();
}

std::string Accessible::description() const {
    return object_ ? taken(atspi_accessible_get_description(accessible(object_), Ignored())) : std::string();
}

std::string Accessible::role() const {
    return object_ ? taken(atspi_accessible_get_role_name(accessible(object_), Ignored())) : std::string();
}

Accessible Accessible::parent() const {
    return Accessible(owned(object_ ? atspi_accessible_get_parent(accessible(object_), Ignored()) : nullptr));
}

std::vector<Accessible> Accessible::children() const {
    std::vector<Accessible> result;
    const int count = object_ ? atspi_accessible_get_child_count(accessible(object_), Ignored()) : 0;
    for (int i = 0; i < count; ++i) {
        if (auto child = owned(atspi_accessible_get_child_at_index(accessible(object_), i, Ignored()))) {
            result.push_back(Accessible(child));
        }
    }
    return result;
}

bool Accessible::has_state(int state) const {
    if (!object_) {
        return false;
    }
    const auto states = owned(atspi_accessible_get_state_set(accessible(object_)));
    return states != nullptr &&
           atspi_state_set_contains(states.get(), static_cast<AtspiStateType>(state)) != FALSE;
}

bool Accessible::showing() const { return has_state(ATSPI_STATE_SHOWING); }
bool Accessible::focused() const { return has_state(ATSPI_STATE_FOCUSED); }
bool Accessible::active() const { return has_state(ATSPI_STATE_ACTIVE); }
bool Accessible::checked() const { return has_state(ATSPI_STATE_CHECKED); }

Rectangle Accessible::place() const {
    const auto component =
        owned(object_ ? atspi_accessible_get_component_iface(accessible(object_)) : nullptr);
    AtspiRect* const found =
        component ? atspi_component_get_extents(component.get(), ATSPI_COORD_TYPE_SCREEN, Ignored())
                  : nullptr;
    if (found == nullptr) {
        return {};
    }
    const Rectangle result{found->x, found->y, found->width, found->height};
    g_free(found);
    return result;
}

std::string Accessible::text() const { return object_ ? text_between(accessible(object_), -1) : ""; }

std::string Accessible::last_text(int characters) const {
    return object_ ? text_between(accessible(object_), characters) : "";
}

int Accessible::caret() const {
    const auto text = owned(object_ ? atspi_accessible_get_text_iface(accessible(object_)) : nullptr);
    return text ? atspi_text_get_caret_offset(text.get(), Ignored()) : -1;
}

bool Accessible::set_text(std::string_view text) const {
    const auto editable =
        owned(object_ ? atspi_accessible_get_editable_text_iface(accessible(object_)) : nullptr);
    return editable && atspi_editable_text_set_text_contents(editable.get(), std::string(text).c_str(),
                                                             Ignored()) != FALSE;
}

bool Accessible::press() const {
    const auto action = owned(object_ ? atspi_accessible_get_action_iface(accessible(object_)) : nullptr);
    return action && atspi_action_do_action(action.get(), 0, Ignored()) != FALSE;
}

bool Accessible::take_focus() const {
    const auto component =
        owned(object_ ? atspi_accessible_get_component_iface(accessible(object_)) : nullptr);
    return component && atspi_component_grab_focus(component.get(), Ignored()) != FALSE;
}

bool Accessible::fits(const Sought& sought) const {
    return (sought.name.empty() || name() == sought.name) && (sought.role.empty() || role() == sought.role) &&
           (sought.description.empty() || description() == sought.description);
}

Accessible Accessible::find(const Sought& sought) const {
    for (const Accessible& child : children()) {
        if (child.fits(sought)) {
            return child;
        }
        if (Accessible below = child.find(sought)) {
            return below;
        }
    }
    return {};
}

std::string Accessible::tree() const {
    std::string result = role() + " \"" + name() + '"';
    if (const std::string more = description(); !more.empty()) {
        result += " (" + more + ")";
    }
    result += showing() ? "\n" : " not showing\n";
    for (const Accessible& child : children()) {
        std::string below = child.tree();
        for (std::size_t line = 0; line < below.size(); line = below.find('\n', line) + 1) {
            below.insert(line, "  ");
        }
        result += below;
    }
    return result;
}
