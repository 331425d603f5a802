#pragma once

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <type_traits>
#include <utility>

namespace qvzj::basic {

/// A growing array of plain values. Unlike std::vector it grows through realloc, which moves
/// pages instead of copying them for large blocks, so a column of a million values never exists
/// twice while it grows.
template <class T>
class Buffer {
  static_assert(std::is_trivially_copyable_v<T>);

 public:
  Buffer() = default;
  Buffer(Buffer&& other) noexcept
      : data_(std::exchange(other.data_, nullptr)),
        size_(std::exchange(other.size_, 0)),
        capacity_(std::exchange(other.capacity_, 0)) {}
  Buffer& operator=(Buffer&& other) noexcept {
    std::swap(data_, other.data_);
    std::swap(size_, other.size_);
    std::swap(capacity_, other.capacity_);
    return *this;
  }
  Buffer(const Buffer&) = delete;
  Buffer& operator=(const Buffer&) = delete;
  ~Buffer() { std::free(data_); }

  /// Number of values.
  size_t Size() const { return size_; }
  bool Empty() const { return size_ == 0; }
  /// The values one after another; the pointer holds until the buffer grows or shrinks.
  T* Data() { return data_; }
  const T* Data() const { return data_; }
  /// The value at a place below Size(), which is not checked.
  T& operator[](size_t i) { return data_[i]; }
  const T& operator[](size_t i) const { return data_[i]; }

  /// Adds one value, or `count` of them, at the end. Like everything that makes room it throws
  /// std::bad_alloc when there is none, and the values stay as they were.
  void Append(T value) {
    if (size_ == capacity_) Grow(size_ + 1);
    data_[size_++] = value;
  }
  void Append(const T* values, size_t count) {
    if (size_ + count > capacity_) Grow(size_ + count);
    if (count) std::memcpy(data_ + size_, values, count * sizeof(T));
    size_ += count;
  }
  /// Sets the size; new places hold `fill`.
  void Resize(size_t size, T fill = T{}) {
    if (size > capacity_) Grow(size);
    for (size_t i = size_; i < size; ++i) data_[i] = fill;
    size_ = size;
  }
  /// Makes room for that many values in all.
  void Reserve(size_t capacity) {
    if (capacity > capacity_) SetCapacity(capacity);
  }
  /// Gives back what was reserved beyond the size.
  void Fit() {
    if (capacity_ > size_) SetCapacity(size_);
  }
  /// Bytes held, room beyond the size included.
  size_t MemoryBytes() const { return capacity_ * sizeof(T); }

 private:
  void Grow(size_t needed) {
    size_t capacity = capacity_ < 16 ? 16 : capacity_ + capacity_ / 2;
    SetCapacity(capacity < needed ? needed : capacity);
  }
  void SetCapacity(size_t capacity) {
    if (capacity == 0) {
      std::free(std::exchange(data_, nullptr));
      capacity_ = 0;
      return;
    }
    void* grown = std::realloc(data_, capacity * sizeof(T));
    if (!grown) throw std::bad_alloc();
    data_ = static_cast<T*>(grown);
    capacity_ = capacity;
  }

  T* data_ = nullptr;
  size_t size_ = 0;
  size_t capacity_ = 0;
};

}  // namespace qvzj::basic
