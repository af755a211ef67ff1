/// Reference-counted objects and their strong pointers.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace mindroid {

/// Thrown by the use of a null strong pointer; defined with the other exceptions.
[[noreturn]] void throwNullPointerException();

template <typename T>
class sp;

/// Base of everything that strong pointers hold. The last strong pointer to go deletes the object.
class Object {
public:
    Object() = default;
    Object(const Object&) {} ///< a copy has references of its own
    Object& operator=(const Object&) { return *this; }

    virtual bool equals(const sp<Object>& other) const; ///< identity, unless overridden
    virtual size_t hashCode() const;
    virtual ~Object() = default;

    void acquireReference() const
    {
        if (mReferences.fetch_add(1, std::memory_order_relaxed) == 0) {
            const_cast<Object*>(this)->onFirstReference();
        }
    }
    void releaseReference() const
    {
        if (mReferences.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            const_cast<Object*>(this)->onLastReference();
            delete this;
        }
    }

protected:
    virtual void onFirstReference() {}
    virtual void onLastReference() {} ///< runs before the destructor

private:
    mutable std::atomic<int32_t> mReferences{0};
};

/// A strong pointer. Using a null one throws a NullPointerException, so that code which interprets untrusted
/// answers may treat "nothing came" as one more malformed answer.
template <typename T>
class sp {
public:
    sp() = default;
    sp(std::nullptr_t) {}
    sp(T* object) : mObject(object) { acquire(); }
    sp(const sp& other) : mObject(other.mObject) { acquire(); }
    sp(sp&& other) noexcept : mObject(std::exchange(other.mObject, nullptr)) {}
    template <typename U>
    sp(const sp<U>& other) : mObject(other.get())
    {
        acquire();
    }
    ~sp() { release(); }

    sp& operator=(sp other) noexcept
    {
        std::swap(mObject, other.mObject);
        return *this;
    }

    T* get() const { return mObject; }
    T* operator->() const { return checked(); }
    T& operator*() const { return *checked(); }
    explicit operator bool() const { return mObject != nullptr; }
    bool operator==(const sp& other) const { return mObject == other.mObject; }
    bool operator==(std::nullptr_t) const { return mObject == nullptr; }

private:
    T* checked() const
    {
        if (mObject == nullptr) {
            throwNullPointerException();
        }
        // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDelete): the analyser doesn't follow the counting
        return mObject;
    }
    void acquire()
    {
        if (mObject != nullptr) {
            mObject->acquireReference();
        }
    }
    void release()
    {
        if (mObject != nullptr) {
            // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDelete): the analyser doesn't follow the counting
            mObject->releaseReference();
        }
    }

    T* mObject = nullptr;
};

/// A new object under its first strong pointer.
template <typename T, typename... Arguments>
sp<T> make(Arguments&&... arguments)
{
    return sp<T>(new T(std::forward<Arguments>(arguments)...));
}

} // namespace mindroid
