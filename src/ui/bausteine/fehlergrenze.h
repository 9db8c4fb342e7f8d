#pragma once

#include <QString>
#include <exception>
#include <functional>
#include <type_traits>

class QWidget;

namespace kalimbo::ui {

class Dialoge;

// The German text shown for an error: a runtime error with its number ("Laufzeitfehler '6':" and
// its text), a file error with its own message, anything else (a lack of memory, a failure in a
// library) with a German sentence, never the library's English text.
QString fehlermeldung(const std::exception& fehler);

// Runs one event handler. An error thrown by the core ends the handler and is shown in a message
// box with the warning icon; the application keeps running.
void fangeFehler(QWidget* eltern, Dialoge& dialoge, const std::function<void()>& handler);

// `handler` as the slot of a connection: it runs inside fangeFehler, with the signal's arguments
// where it takes them. Every handler of every window is connected this way.
template <class Handler>
auto sicher(QWidget* eltern, Dialoge& dialoge, Handler handler) {
    return [eltern, &dialoge, handler = std::move(handler)](const auto&... argumente) {
        fangeFehler(eltern, dialoge, [&] {
            if constexpr (std::is_invocable_v<const Handler&, decltype(argumente)...>)
                handler(argumente...);
            else
                handler();
        });
    };
}

}  // namespace kalimbo::ui
