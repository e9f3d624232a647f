#include "app/terminal/DescriptorBuffer.h"

#include <cerrno>
#include <unistd.h>

namespace tovrel {

DescriptorBuffer::DescriptorBuffer(int fileDescriptor) : fileDescriptor_(fileDescriptor) {
    setp(bytes_.data(), bytes_.data() + bytes_.size());
}

DescriptorBuffer::int_type DescriptorBuffer::overflow(int_type character) {
    sync();
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        sputc(traits_type::to_char_type(character));
    }
    return traits_type::not_eof(character);
}

int DescriptorBuffer::sync() {
    const char* next = pbase();
    const char* const end = pptr();
    // Bytes that cannot be written now are dropped, so that a later flush does not fail once more.
    setp(bytes_.data(), bytes_.data() + bytes_.size());
    while (next < end) {
        const ssize_t written = write(fileDescriptor_, next, static_cast<std::size_t>(end - next));
        if (written >= 0) {
            next += written;
        } else if (errno != EINTR) {
            throw OutputError(errno, std::generic_category());
        }
    }
    return 0;
}

} // namespace tovrel
