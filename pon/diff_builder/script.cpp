#include "pon/diff_builder/script.h"

#include <cstdlib>
#include <cstring>

namespace pondiff {

Script* Script::current_;

Script::Script() : outer_(current_)
{
    current_ = this;
}

Script::~Script()
{
    current_ = outer_;
    std::free(text_);
}

bool Script::grow(std::size_t more)
{
    constexpr std::size_t least = 16384;
    constexpr std::size_t doubled_until = std::size_t{1} << 20;
    // Small texts double; large ones grow by a third, so that little memory is allocated beyond the text.
    std::size_t wanted = capacity_ < doubled_until ? capacity_ * 2 : capacity_ + capacity_ / 3;
    if (wanted < least) {
        wanted = least;
    }
    if (wanted < size_ + more + 1) {
        wanted = size_ + more + 1;
    }
    auto* const bigger = static_cast<char*>(std::realloc(text_, wanted));
    if (!bigger) {
        failed_ = true;
        return false;
    }
    text_ = bigger;
    capacity_ = wanted;
    return true;
}

void Script::append_line(const Text& line)
{
    failed_ = failed_ || line.failed();
    const std::size_t size = line.size();
    if (failed_ || size == 0 || *line.data() == '\n') {
        return;
    }
    if (capacity_ - size_ <= size + 1 && !grow(size + 1)) {
        return;
    }
    std::memcpy(text_ + size_, line.data(), size);
    size_ += size;
    text_[size_++] = '\n';
}

char* Script::release()
{
    if (failed_) {
        return nullptr;
    }
    auto* const fitted = static_cast<char*>(std::realloc(text_, size_ + 1));
    if (fitted) {
        text_ = fitted;
    } else if (!text_) {
        return nullptr;
    }
    text_[size_] = '\0';
    char* const text = text_;
    text_ = nullptr;
    size_ = capacity_ = 0;
    return text;
}

bool push(List<char>& out, const Text& text)
{
    if (Script* const script = Script::of(out)) {
        script->append_line(text);
        return !script->failed();
    }
    char* const copy = text.release_copy();
    if (!copy) {
        return false;
    }
    if (out.push_back(copy)) {
        return true;
    }
    std::free(copy);
    return false;
}

} // namespace pondiff
