#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Builds a long text from many short ones with few allocations. (The member that appends is called `Append`: a member
/// of the class's own name would be a constructor.)
class concat {
public:
    /// Forgets the text and keeps the capacity.
    void Clear() { position_ = 1; }

    void Append(std::string_view text);

    /// Bytes of the text so far.
    std::size_t Length() const { return position_ - 1; }

    /// The text so far.
    std::string Value() const { return puffer_.substr(0, Length()); }

    /// Bytes that the text may grow to before the buffer does.
    std::size_t Capacity() const { return puffer_.size(); }

private:
    std::string puffer_;
    std::size_t position_{1}; ///< where the next text goes, counted from 1
};
