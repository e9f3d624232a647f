// Presses keys for bench/palette-latency and measures how long the pixels of a part of the screen take to
// change. It reads commands, one per line, and answers each with one line, which is "no" with a reason on
// failure.
//
//   area X Y W H              the part of the screen that is watched from now on
//   time QUIET TIMEOUT KEYS…  presses KEYS; microseconds until the first changed pixels were seen, until
//                             the last before QUIET ms without any, and how many times they changed; "no"
//                             when none changed within TIMEOUT ms
//   press KEYS…               presses KEYS
//   still QUIET TIMEOUT       waits until no pixel has changed for QUIET ms, not even a caret's
//   remember                  keeps the present pixels of the area
//   restored TIMEOUT          waits until the area looks so again; the microseconds that took
//   front WINDOW TIMEOUT      waits until the window manager says that this window is the active one
//   resources PID             the resources the X server holds for a process: TYPE=COUNT, separated by TABs
//   calibrate N               draws N times itself; the microseconds until each was seen

#include <charconv>
#include <chrono>
#include <cstdint>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "ClientResources.h"
#include "KeyPlayer.h"
#include "ScreenArea.h"

namespace {

using namespace tovrel;
using Clock = ScreenArea::Clock;
using Words = std::vector<std::string>;

constexpr std::chrono::milliseconds oneDrawing{1000};

std::int64_t microseconds(Clock::duration duration) {
    return std::chrono::duration_cast<std::chrono::microseconds>(duration).count();
}

/// Absent unless all of the words from `first` on, `count` of them, are numbers that fit.
template <typename Number>
std::optional<std::vector<Number>> numbers(const Words& words, std::size_t first, std::size_t count) {
    std::vector<Number> values;
    for (std::size_t index = first; index < first + count; ++index) {
        Number value{};
        if (index >= words.size()) {
            return std::nullopt;
        }
        const char* end = words[index].data() + words[index].size();
        if (const auto parsed = std::from_chars(words[index].data(), end, value);
            parsed.ec != std::errc() || parsed.ptr != end) {
            return std::nullopt;
        }
        values.push_back(value);
    }
    return values;
}

class PixelWatch {
  public:
    [[nodiscard]] bool isAvailable() const { return screen_.isAvailable(); }

    std::string answer(const Words& words) {
        const std::string verb = words.empty() ? "" : words.front();
        if (verb == "area") {
            return area(words);
        }
        if (verb == "time") {
            return time(words);
        }
        if (verb == "press") {
            return press(words, 1) ? "ok" : "no such key";
        }
        if (verb == "still") {
            return still(words);
        }
        if (verb == "remember") {
            screen_.look();
            screen_.remember();
            return "ok";
        }
        if (verb == "restored") {
            return restored(words);
        }
        if (verb == "front") {
            return front(words);
        }
        if (verb == "resources") {
            return resources(words);
        }
        if (verb == "calibrate") {
            return calibrate(words);
        }
        return "no such command";
    }

  private:
    std::string area(const Words& words) {
        const auto given = numbers<std::uint16_t>(words, 1, 4);
        if (!given) {
            return "no area";
        }
        const auto& value = *given;
        return screen_.watch({static_cast<std::int16_t>(value[0]), static_cast<std::int16_t>(value[1]),
                              value[2], value[3]})
                   ? "ok"
                   : "no such part of the screen";
    }

    bool press(const Words& words, std::size_t first) {
        const bool played =
            keys_.play(Words(words.begin() + static_cast<std::ptrdiff_t>(first), words.end()));
        keys_.send();
        return played;
    }

    std::string time(const Words& words) {
        const auto limits = numbers<int>(words, 1, 2);
        if (!limits || !screen_.look()) {
            return "no limits or no area";
        }
        const Clock::time_point start = Clock::now();
        if (!press(words, 3)) {
            return "no such key";
        }
        const auto changes = screen_.waitForChanges(std::chrono::milliseconds((*limits)[0]),
                                                    start + std::chrono::milliseconds((*limits)[1]));
        if (!changes) {
            return "no change";
        }
        return std::to_string(microseconds(changes->first - start)) + ' ' +
               std::to_string(microseconds(changes->last - start)) + ' ' + std::to_string(changes->count);
    }

    std::string still(const Words& words) {
        const auto limits = numbers<int>(words, 1, 2);
        if (!limits || !screen_.look()) {
            return "no limits or no area";
        }
        const std::chrono::milliseconds quiet((*limits)[0]);
        const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds((*limits)[1]);
        while (screen_.waitForChanges({}, std::min(Clock::now() + quiet, deadline))) {
            screen_.look();
            if (Clock::now() >= deadline) {
                return "no rest";
            }
        }
        return "ok";
    }

    std::string restored(const Words& words) {
        const auto limits = numbers<int>(words, 1, 1);
        const Clock::time_point start = Clock::now();
        return limits && screen_.waitForRemembered(start + std::chrono::milliseconds(limits->front()))
                   ? std::to_string(microseconds(Clock::now() - start))
                   : "no return";
    }

    std::string front(const Words& words) {
        const auto given = numbers<std::uint32_t>(words, 1, 2);
        if (!given) {
            return "no window or no limit";
        }
        const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds((*given)[1]);
        const X11RootPropertyWatch watch(connection_);
        do {
            const auto active = connection_.numbers(connection_.root(), "_NET_ACTIVE_WINDOW");
            if (!active.empty() && active.front() == given->front()) {
                return "ok";
            }
        } while (connection_.waitForPropertyChange(deadline));
        return "no such window in front";
    }

    std::string resources(const Words& words) {
        const auto process = numbers<std::uint32_t>(words, 1, 1);
        std::string answer;
        if (process) {
            for (const auto& [type, count] : clientResources(connection_, process->front())) {
                answer += (answer.empty() ? "" : "\t") + type + '=' + std::to_string(count);
            }
        }
        return answer.empty() ? "no resources" : answer;
    }

    std::string calibrate(const Words& words) {
        const auto count = numbers<int>(words, 1, 1);
        if (!count || screen_.area().width == 0) {
            return "no number or no area";
        }
        X11Connection painter;
        xcb_connection_t* handle = painter.handle();
        const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(handle)).data;
        const xcb_window_t window = xcb_generate_id(handle);
        const xcb_gcontext_t context = xcb_generate_id(handle);
        const auto& area = screen_.area();
        const std::uint32_t unmanaged = 1;
        xcb_create_window(handle, XCB_COPY_FROM_PARENT, window, painter.root(), area.x, area.y, area.width,
                          area.height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                          XCB_CW_OVERRIDE_REDIRECT, &unmanaged);
        xcb_create_gc(handle, context, window, 0, nullptr);
        xcb_map_window(handle, window);
        std::string answer;
        for (int round = 0; round <= count->front(); ++round) {
            const std::uint32_t colour = round % 2 == 0 ? screen->white_pixel : screen->black_pixel;
            xcb_change_gc(handle, context, XCB_GC_FOREGROUND, &colour);
            screen_.look();
            const Clock::time_point start = Clock::now();
            const xcb_rectangle_t everything{0, 0, area.width, area.height};
            xcb_poly_fill_rectangle(handle, window, context, 1, &everything);
            xcb_flush(handle);
            const auto changes = screen_.waitForChanges({}, start + oneDrawing);
            if (!changes) {
                return "no change";
            }
            // The first drawing shows the window as well.
            if (round > 0) {
                answer += (answer.empty() ? "" : " ") + std::to_string(microseconds(changes->first - start));
            }
        }
        return answer;
    }

    X11Connection connection_;
    KeyPlayer keys_{connection_};
    ScreenArea screen_{connection_};
};

} // namespace

int main() {
    PixelWatch watch;
    if (!watch.isAvailable()) {
        std::cerr << "tovrel_pixel_watch: there is no X server with the extensions DAMAGE and MIT-SHM\n";
        return 1;
    }
    std::string line;
    while (std::getline(std::cin, line)) {
        std::istringstream stream(line);
        Words words;
        for (std::string word; stream >> word;) {
            words.push_back(word);
        }
        std::cout << watch.answer(words) << std::endl;
    }
    return 0;
}
