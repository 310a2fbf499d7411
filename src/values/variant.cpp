// The tagged value shared by every subsystem. Owned texts and blocks always go
// through the process-wide hooks so a host can account for every byte.
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <new>

#include "quen_3_1/quen.h"

namespace tarvo2 {

variant_t::hooks_t variant_t::m_mem = {&std::free, &std::malloc};

namespace {

bool ownsMemory(kel_variant_type_t type) { return type == vt_str || type == vt_wstr || type == vt_blob; }

bool isIntegerKind(kel_variant_type_t type) { return type <= vt_uint64; }

bool isNumericKind(kel_variant_type_t type) { return type <= vt_double; }

bool isNarrowText(kel_variant_type_t type) { return type == vt_str || type == vt_str_ref; }

bool isWideText(kel_variant_type_t type) { return type == vt_wstr || type == vt_wstr_ref; }

// The payload word holds the pointer itself; that is the variant's layout.
template <class P>
P payloadPointer(std::uint64_t data) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    return reinterpret_cast<P>(static_cast<std::uintptr_t>(data));
}

std::uint64_t pointerPayload(void const* p) { return static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(p)); }

double payloadAsDouble(std::uint64_t data) {
    double d = 0;
    std::memcpy(&d, &data, sizeof d);
    return d;
}

// A hook that runs out of memory answers null; nothing is ever written there.
void* allocateOrThrow(std::size_t bytes) {
    void* const memory = variant_t::m_mem.allocate(bytes);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void* duplicate(void const* source, std::size_t bytes) {
    void* copy = allocateOrThrow(bytes);
    std::memcpy(copy, source, bytes);
    return copy;
}

std::uint32_t blobSize(std::uint64_t data) {
    std::uint32_t size = 0;
    std::memcpy(&size, payloadPointer<void const*>(data), sizeof size);
    return size;
}

// A null text compares like the empty text.
template <class C>
C const* textOrEmpty(std::uint64_t data) {
    static C const empty[1] = {};
    C const* const text = payloadPointer<C const*>(data);
    return text != nullptr ? text : empty;
}

bool equalNarrow(std::uint64_t a, std::uint64_t b) {
    return std::strcmp(textOrEmpty<char>(a), textOrEmpty<char>(b)) == 0;
}

bool equalWide(std::uint64_t a, std::uint64_t b) {
    return std::wcscmp(textOrEmpty<wchar_t>(a), textOrEmpty<wchar_t>(b)) == 0;
}

bool equalBlobs(std::uint64_t a, std::uint64_t b) {
    std::uint32_t const size = blobSize(a);
    return size == blobSize(b) &&
           std::memcmp(payloadPointer<char const*>(a), payloadPointer<char const*>(b), size + sizeof size) == 0;
}

// An integer payload meets a floating one as an unsigned 64-bit number, even
// for the signed kinds; kept so for hosts that rely on it. The two floating
// kinds of different codes never meet: nothing makes them equal.
bool equalNumbers(variant_t const& a, variant_t const& b) {
    bool const integerA = isIntegerKind(a.m_type);
    bool const integerB = isIntegerKind(b.m_type);
    if (integerA && integerB) {
        return a.m_data == b.m_data;
    }
    if (!integerA && !integerB) {
        return false;
    }
    return a.as<double>() == b.as<double>();
}

bool equalSameKind(variant_t const& a, variant_t const& b) {
    switch (a.m_type) {
        case vt_float:
        case vt_double:
            return payloadAsDouble(a.m_data) == payloadAsDouble(b.m_data);
        case vt_str:
        case vt_str_ref:
            return equalNarrow(a.m_data, b.m_data);
        case vt_wstr:
        case vt_wstr_ref:
            return equalWide(a.m_data, b.m_data);
        case vt_blob:
            return equalBlobs(a.m_data, b.m_data);
        case vt_empty:
            return true;
        default:
            return a.m_data == b.m_data;
    }
}

// A fresh copy of the owned text, wide text or block of `source`.
void* duplicateOwned(variant_t const& source) {
    if (source.m_type == vt_str) {
        auto const* text = payloadPointer<char const*>(source.m_data);
        return duplicate(text, std::strlen(text) + 1);
    }
    if (source.m_type == vt_wstr) {
        auto const* text = payloadPointer<wchar_t const*>(source.m_data);
        return duplicate(text, (std::wcslen(text) + 1) * sizeof(wchar_t));
    }
    return duplicate(payloadPointer<void const*>(source.m_data), blobSize(source.m_data) + sizeof(std::uint32_t));
}

// Copies kind and payload; owned content is duplicated through the hooks.
// `target` holds nothing owned until the copy exists, so a failed allocation
// leaves it empty rather than sharing `source`'s memory.
void copyInto(variant_t& target, variant_t const& source) {
    kel_variant_type_t const type = source.m_type;
    std::uint64_t data = source.m_data;
    target.m_type = vt_empty;
    target.m_data = 0;
    if (ownsMemory(type) && data != 0) {
        data = pointerPayload(duplicateOwned(source));
    }
    target.m_data = data;
    target.m_type = type;
}

}  // namespace

variant_t::variant_t() : m_data(0), m_type(vt_empty) {}
variant_t::variant_t(bool value) : m_data(value ? 1 : 0), m_type(vt_bool) {}
variant_t::variant_t(int value)
    : m_data(static_cast<std::uint64_t>(static_cast<std::int64_t>(value))), m_type(vt_int) {}
variant_t::variant_t(unsigned int value) : m_data(value), m_type(vt_uint) {}
variant_t::variant_t(long value) : m_data(static_cast<std::uint64_t>(value)), m_type(vt_int64) {}
variant_t::variant_t(unsigned long value) : m_data(value), m_type(vt_uint64) {}
variant_t::variant_t(long long value) : m_data(static_cast<std::uint64_t>(value)), m_type(vt_int64) {}
variant_t::variant_t(unsigned long long value) : m_data(value), m_type(vt_uint64) {}
variant_t::variant_t(double value) : m_data(0), m_type(vt_double) { std::memcpy(&m_data, &value, sizeof value); }

variant_t::variant_t(char const* text) : m_data(0), m_type(vt_str) {
    if (text != nullptr) {
        m_data = pointerPayload(duplicate(text, std::strlen(text) + 1));
    }
}

variant_t::variant_t(wchar_t const* text) : m_data(0), m_type(vt_wstr) {
    if (text != nullptr) {
        m_data = pointerPayload(duplicate(text, (std::wcslen(text) + 1) * sizeof(wchar_t)));
    }
}

variant_t variant_t::str_ref(char const* text) {
    variant_t v;
    v.m_type = vt_str_ref;
    v.m_data = pointerPayload(text);
    return v;
}

variant_t variant_t::wstr_ref(wchar_t const* text) {
    variant_t v;
    v.m_type = vt_wstr_ref;
    v.m_data = pointerPayload(text);
    return v;
}

variant_t variant_t::blob(void const* bytes, std::uint32_t size) {
    variant_t v;
    auto* block = static_cast<unsigned char*>(allocateOrThrow(size + sizeof size));
    std::memcpy(block, &size, sizeof size);
    if (size != 0) {
        std::memcpy(block + sizeof size, bytes, size);
    }
    v.m_type = vt_blob;
    v.m_data = pointerPayload(block);
    return v;
}

variant_t::variant_t(variant_t const& other) : m_data(0), m_type(vt_empty) { copyInto(*this, other); }

variant_t& variant_t::operator=(variant_t const& other) {
    if (ownsMemory(other.m_type) && &other == this) {
        return *this;
    }
    free_data();
    copyInto(*this, other);
    return *this;
}

variant_t::~variant_t() { free_data(); }

void variant_t::free_data() {
    bool const ownedText = (m_type == vt_str || m_type == vt_wstr) && m_data != 0;
    if (ownedText || m_type == vt_blob) {
        m_mem.release(payloadPointer<void*>(m_data));
    }
}

bool variant_t::operator==(variant_t const& other) const {
    if (m_type == other.m_type) {
        return equalSameKind(*this, other);
    }
    if (isNumericKind(m_type) && isNumericKind(other.m_type)) {
        return equalNumbers(*this, other);
    }
    if (isNarrowText(m_type) && isNarrowText(other.m_type)) {
        return equalNarrow(m_data, other.m_data);
    }
    if (isWideText(m_type) && isWideText(other.m_type)) {
        return equalWide(m_data, other.m_data);
    }
    return false;
}

bool variant_t::operator!=(variant_t const& other) const { return !(*this == other); }

template <>
bool variant_t::as<bool>() const {
    return m_data != 0;
}

template <>
int variant_t::as<int>() const {
    return static_cast<int>(static_cast<std::uint32_t>(m_data));
}

template <>
unsigned int variant_t::as<unsigned int>() const {
    return static_cast<std::uint32_t>(m_data);
}

template <>
long long variant_t::as<long long>() const {
    return static_cast<long long>(m_data);
}

template <>
unsigned long long variant_t::as<unsigned long long>() const {
    return m_data;
}

template <>
double variant_t::as<double>() const {
    if (isIntegerKind(m_type)) {
        return static_cast<double>(m_data);
    }
    return payloadAsDouble(m_data);
}

template <>
char const* variant_t::as<char const*>() const {
    return isNarrowText(m_type) ? payloadPointer<char const*>(m_data) : nullptr;
}

}  // namespace tarvo2
