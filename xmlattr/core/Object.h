// Reference-counted objects and the intrusive pointer to them.
#pragma once

#include "xmlattr/core/Exceptions.h"
#include "xmlattr/core/Export.h"

#include <atomic>
#include <cstddef>
#include <type_traits>
#include <utility>

namespace Core {

// Starts with no reference and deletes itself when the last one is released. The count is atomic,
// so that threads may share an object; everything else is up to the derived class.
class XMLATTR_API Object {
public:
    Object() noexcept = default;
    // A copy is a new object: nobody refers to it yet.
    Object(Object const&) noexcept {}
    Object& operator=(Object const&) noexcept { return *this; }
    virtual ~Object();

    // Only the maker of the object can add its first reference, and only the holder of the last one can
    // release it: neither needs an atomic addition, and most objects never have a second reference.
    void AddRef() const noexcept {
        if (references.load(std::memory_order_relaxed) == 0)
            references.store(1, std::memory_order_relaxed);
        else
            references.fetch_add(1, std::memory_order_relaxed);
    }
    void Release() const noexcept {
        if (references.load(std::memory_order_acquire) == 1 || references.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete this;
    }

private:
    mutable std::atomic<int> references = 0;
};

// Holds one reference to a T, or null. Comparison is by identity. Dereferencing null throws
// NullPointerException.
template <class T> class SmartPtr {
public:
    constexpr SmartPtr() noexcept = default;
    constexpr SmartPtr(std::nullptr_t) noexcept {}
    SmartPtr(T* newObject) noexcept : object(newObject) {
        if (object) object->AddRef();
    }
    SmartPtr(SmartPtr const& other) noexcept : SmartPtr(other.object) {}
    template <class U>
    requires std::is_convertible_v<U*, T*> SmartPtr(SmartPtr<U> const& other)
    noexcept : SmartPtr(other.get()) {}
    constexpr SmartPtr(SmartPtr&& other) noexcept : object(std::exchange(other.object, nullptr)) {}
    constexpr ~SmartPtr() {
        if (object) object->Release();
    }
    // By value: the incoming object gains its reference before the old one loses this pointer's.
    SmartPtr& operator=(SmartPtr other) noexcept {
        std::swap(object, other.object);
        return *this;
    }

    // Null where there is no object; the reference stays with this pointer.
    T* get() const noexcept { return object; }
    T* operator->() const { return &operator*(); }
    T& operator*() const {
        if (!object) NullPointerException::raise();
        return *object;
    }
    explicit operator bool() const noexcept { return object != nullptr; }
    bool operator!() const noexcept { return object == nullptr; }

    template <class U> bool operator==(SmartPtr<U> const& other) const noexcept { return object == other.get(); }
    bool operator==(std::nullptr_t) const noexcept { return object == nullptr; }

private:
    T* object = nullptr;
};

} // namespace Core
