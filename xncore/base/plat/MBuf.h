// plat::MBuf<T>: an owned array with its element count. With `secure_` set,
// every byte is wiped before it is released, for buffers that hold secrets.
#pragma once

#include "plat/SecureWipe.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace plat {

template <class T>
class MBuf {
public:
  MBuf() noexcept = default;
  explicit MBuf(std::int32_t length, bool secure = false) : secure_(secure) { resize(length); }
  MBuf(const T* data, std::int32_t length, bool secure = false) : MBuf(length, secure) {
    std::copy(data, data + length, data_);
  }
  MBuf(const MBuf& other) : MBuf(other.data_, other.length_, other.secure_) {}
  MBuf(MBuf&& other) noexcept
      : length_(std::exchange(other.length_, 0)), data_(std::exchange(other.data_, nullptr)),
        secure_(other.secure_) {}
  MBuf& operator=(const MBuf& other) {
    if (this != &other)
      *this = MBuf(other);
    return *this;
  }
  MBuf& operator=(MBuf&& other) noexcept {
    if (this != &other) {
      release();
      length_ = std::exchange(other.length_, 0);
      data_ = std::exchange(other.data_, nullptr);
      secure_ = other.secure_;
    }
    return *this;
  }
  ~MBuf() { release(); }

  T* data() noexcept { return data_; }
  const T* data() const noexcept { return data_; }
  std::int32_t length() const noexcept { return length_; }
  bool isSecure() const noexcept { return secure_; }
  void setSecure(bool secure) noexcept { secure_ = secure; }
  T& operator[](std::int32_t i) noexcept { return data_[i]; }
  const T& operator[](std::int32_t i) const noexcept { return data_[i]; }

  /// Changes the element count. The block is kept when shrinking by no more
  /// than half (or while small); otherwise a new one takes the old elements.
  void resize(std::int32_t length) {
    if (length <= length_ && (2 * static_cast<std::int64_t>(length) >= length_ || length_ < 128)) {
      if (secure_ && length < length_)
        secureWipe(data_ + length, sizeof(T) * static_cast<std::size_t>(length_ - length));
      length_ = length;
      return;
    }
    if (length <= 0) {
      release();
      return;
    }
    T* block = new T[static_cast<std::size_t>(length)]();
    std::copy(data_, data_ + std::min(length, length_), block);
    release();
    data_ = block;
    length_ = length;
  }

  /// Frees the block (wiping it first if secure) and leaves the buffer empty.
  void release() noexcept {
    if (data_ && secure_)
      secureWipe(data_, sizeof(T) * static_cast<std::size_t>(length_));
    delete[] data_;
    data_ = nullptr;
    length_ = 0;
  }

private:
  std::int32_t length_ = 0;
  T* data_ = nullptr;
  bool secure_ = false;
};

} // namespace plat
