#pragma once
// Owners of GDI objects.

#include <windows.h>

#include <utility>

namespace varrocade {

/// Owns a GDI object and deletes it.
template <typename Handle>
class GdiObject {
public:
    GdiObject() = default;
    explicit GdiObject(Handle handle) : handle_(handle) {}
    GdiObject(GdiObject&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    GdiObject& operator=(GdiObject&& other) noexcept {
        if (this != &other) {
            reset();
            handle_ = std::exchange(other.handle_, nullptr);
        }
        return *this;
    }
    GdiObject(const GdiObject&) = delete;
    GdiObject& operator=(const GdiObject&) = delete;
    ~GdiObject() { reset(); }

    [[nodiscard]] Handle get() const { return handle_; }
    void reset() {
        if (handle_ != nullptr) {
            DeleteObject(handle_);
            handle_ = nullptr;
        }
    }

private:
    Handle handle_ = nullptr;
};

/// Selects an object into a device context for the length of a scope.
class Selection {
public:
    Selection(HDC device, HGDIOBJ object) : device_(device), former_(SelectObject(device, object)) {}
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;
    ~Selection() { SelectObject(device_, former_); }

private:
    HDC device_;
    HGDIOBJ former_;
};

/// A device context in memory for the length of a scope.
class MemoryDevice {
public:
    explicit MemoryDevice(HDC like) : device_(CreateCompatibleDC(like)) {}
    MemoryDevice(const MemoryDevice&) = delete;
    MemoryDevice& operator=(const MemoryDevice&) = delete;
    ~MemoryDevice() { DeleteDC(device_); }
    [[nodiscard]] HDC get() const { return device_; }

private:
    HDC device_;
};

} // namespace varrocade
