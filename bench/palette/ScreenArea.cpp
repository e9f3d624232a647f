#include "ScreenArea.h"

#include <algorithm>
#include <cstring>
#include <poll.h>

#include <sys/ipc.h>
#include <sys/shm.h>

#include "platform/x11/server/XcbOwned.h"

namespace tovrel {
namespace {

constexpr std::size_t bytesOfPixel = 4; // at the depths of 24 and 32 bits
constexpr std::uint32_t allPlanes = 0xFFFFFFFF;

bool overlap(const ScreenArea::Rectangle& one, const xcb_rectangle_t& other) {
    return one.x < other.x + other.width && other.x < one.x + one.width && one.y < other.y + other.height &&
           other.y < one.y + one.height;
}

} // namespace

ScreenArea::ScreenArea(X11Connection& connection) : connection_(connection) {
    xcb_connection_t* handle = connection_.handle();
    const xcb_query_extension_reply_t* damage = xcb_get_extension_data(handle, &xcb_damage_id);
    const xcb_query_extension_reply_t* shm = xcb_get_extension_data(handle, &xcb_shm_id);
    if (!connection_.isOpen() || damage == nullptr || damage->present == 0 || shm == nullptr ||
        shm->present == 0) {
        return;
    }
    const XcbOwned<xcb_damage_query_version_reply_t> version(
        xcb_damage_query_version_reply(handle, xcb_damage_query_version(handle, 1, 1), nullptr));
    damageEvent_ = static_cast<std::uint8_t>(damage->first_event + XCB_DAMAGE_NOTIFY);
    xcb_damage_create(handle, xcb_generate_id(handle), connection_.root(),
                      XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    hasDamage_ = version != nullptr && xcb_flush(handle) > 0;
}

ScreenArea::~ScreenArea() {
    release();
}

bool ScreenArea::watch(const Rectangle& area) {
    release();
    area_ = area;
    bytes_ = bytesOfPixel * area.width * area.height;
    const int identifier = shmget(IPC_PRIVATE, bytes_, IPC_CREAT | 0600);
    if (identifier == -1) {
        return false;
    }
    void* memory = shmat(identifier, nullptr, 0);
    segment_ = xcb_generate_id(connection_.handle());
    const XcbOwned<xcb_generic_error_t> error(xcb_request_check(
        connection_.handle(),
        xcb_shm_attach_checked(connection_.handle(), segment_, static_cast<std::uint32_t>(identifier), 0)));
    // The segment is removed as soon as both sides have detached it.
    shmctl(identifier, IPC_RMID, nullptr);
    if (memory == reinterpret_cast<void*>(-1) || error) { // NOLINT: what shmat returns for a failure
        return false;
    }
    shared_ = static_cast<const std::uint8_t*>(memory);
    return look();
}

bool ScreenArea::look() {
    // Earlier events are dropped, because the pixels that are read now include everything drawn before.
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(connection_.handle())}) {
    }
    if (!read()) {
        return false;
    }
    seen_.assign(shared_, shared_ + bytes_);
    return true;
}

std::optional<ScreenArea::Changes> ScreenArea::waitForChanges(std::chrono::milliseconds quiet,
                                                              Clock::time_point deadline) {
    std::optional<Changes> changes;
    while (waitForDrawing(changes ? std::min(changes->last + quiet, deadline) : deadline)) {
        if (!read()) {
            return std::nullopt;
        }
        if (std::memcmp(shared_, seen_.data(), bytes_) == 0) {
            continue;
        }
        const Clock::time_point now = Clock::now();
        if (!changes) {
            changes = Changes{now, now};
        }
        changes->last = now;
        ++changes->count;
        if (quiet == std::chrono::milliseconds::zero()) {
            break;
        }
        seen_.assign(shared_, shared_ + bytes_);
    }
    return changes;
}

void ScreenArea::remember() {
    remembered_ = seen_;
}

bool ScreenArea::waitForRemembered(Clock::time_point deadline) {
    do {
        if (!read() || remembered_.size() != bytes_) {
            return false;
        }
        if (std::memcmp(shared_, remembered_.data(), bytes_) == 0) {
            return true;
        }
    } while (waitForDrawing(deadline));
    return false;
}

bool ScreenArea::read() {
    xcb_connection_t* handle = connection_.handle();
    const XcbOwned<xcb_shm_get_image_reply_t> reply(xcb_shm_get_image_reply(
        handle,
        xcb_shm_get_image(handle, connection_.root(), area_.x, area_.y, area_.width, area_.height, allPlanes,
                          XCB_IMAGE_FORMAT_Z_PIXMAP, segment_, 0),
        nullptr));
    return reply != nullptr && reply->size == bytes_;
}

bool ScreenArea::waitForDrawing(Clock::time_point deadline) {
    while (!hasBeenDrawn()) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        pollfd socket{.fd = connection_.fileDescriptor(), .events = POLLIN, .revents = 0};
        if (left <= 0 || xcb_connection_has_error(connection_.handle()) != 0 ||
            poll(&socket, 1, static_cast<int>(left)) < 0) {
            return false;
        }
    }
    return true;
}

bool ScreenArea::hasBeenDrawn() {
    bool found = false;
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(connection_.handle())}) {
        if ((event->response_type & 0x7FU) == damageEvent_) {
            found = overlap(area_, reinterpret_cast<const xcb_damage_notify_event_t&>(*event).area) || found;
        }
    }
    return found;
}

void ScreenArea::release() {
    if (shared_ != nullptr) {
        xcb_shm_detach(connection_.handle(), segment_);
        xcb_flush(connection_.handle());
        shmdt(shared_);
        shared_ = nullptr;
    }
}

} // namespace tovrel
