// quen_3_1: run-time declared command-line and option-text parsing.
//
// Hosts reach the library only through the abstract interfaces below, so the
// order of every virtual operation and of every public field is part of the
// binary contract: never reorder, insert or remove a virtual operation.
//
// Threads: independent parsers and results may be used on different threads
// at once (sequence numbers come from one atomic counter, the trace switch
// belongs to the thread that parses). One parser or one result shared between
// threads needs the host's own locking, and the memory hooks of variant_t are
// process-wide: set them before any thread starts.
#ifndef QUEN_3_1_QUEN_H
#define QUEN_3_1_QUEN_H

#include <cstddef>
#include <cstdint>

#if defined(_WIN32)
#if defined(QUEN_3_1_BUILDING)
#define QUEN_API __declspec(dllexport)
#else
#define QUEN_API __declspec(dllimport)
#endif
#else
#define QUEN_API __attribute__((visibility("default")))
#endif

namespace tarvo2 {

// Kind codes of variant_t. The numbers are fixed: the library switches on them.
enum kel_variant_type_t : std::int32_t {
    vt_bool = 0,
    vt_int8 = 1,  // codes 1-5 and 10 exist for compatibility; never produced
    vt_uint8 = 2,
    vt_int16 = 3,
    vt_uint16 = 4,
    vt_long = 5,
    vt_int = 6,
    vt_uint = 7,
    vt_int64 = 8,
    vt_uint64 = 9,
    vt_float = 10,
    vt_double = 11,
    vt_str = 12,
    vt_wstr = 13,
    vt_str_ref = 14,
    vt_wstr_ref = 15,
    vt_blob = 16,
    vt_empty = 17
};

// A tagged value of two machine words: a 64-bit payload and its kind.
// Kinds vt_str, vt_wstr and vt_blob own memory obtained through m_mem.
struct QUEN_API variant_t {
    // Process-wide memory hooks for owned texts and blocks, in this order.
    // Defaults: std::free and std::malloc. Every allocation is released once.
    // An allocation hook that answers null makes the operation throw
    // std::bad_alloc; nothing is written through the null pointer.
    struct hooks_t {
        void (*release)(void* p);
        void* (*allocate)(std::size_t bytes);
    };
    static hooks_t m_mem;

    std::uint64_t m_data;
    kel_variant_type_t m_type;

    // Empty value (vt_empty).
    variant_t();
    variant_t(bool value);
    variant_t(int value);
    variant_t(unsigned int value);
    variant_t(long value);
    variant_t(unsigned long value);
    variant_t(long long value);
    variant_t(unsigned long long value);
    variant_t(double value);
    // Owned copy of the text (vt_str); a null pointer stays null.
    variant_t(char const* text);
    // Owned copy of the wide text (vt_wstr); a null pointer stays null.
    variant_t(wchar_t const* text);
    // Borrowed text (vt_str_ref): the caller keeps it alive.
    static variant_t str_ref(char const* text);
    // Borrowed wide text (vt_wstr_ref): the caller keeps it alive.
    static variant_t wstr_ref(wchar_t const* text);
    // Owned copy of `size` bytes (vt_blob); stored as a 32-bit count and the bytes.
    static variant_t blob(void const* bytes, std::uint32_t size);

    // Deep copy: owned texts and blocks are duplicated through m_mem.
    variant_t(variant_t const& other);
    // Releases the current content, then copies deeply; owned self-assignment is a no-op.
    variant_t& operator=(variant_t const& other);
    // Releases owned content (free_data).
    ~variant_t();
    // Passes owned memory to m_mem.release; the kind is left as it is.
    void free_data();

    // Same kind: payload, text or bytes equal. Integer kinds compare with each
    // other by payload and with doubles through the payload read as unsigned.
    // A null text (vt_str, vt_wstr or a borrowed null) compares like the empty
    // text. vt_float and vt_double never compare equal to each other.
    bool operator==(variant_t const& other) const;
    bool operator!=(variant_t const& other) const;

    // Typed reads: bool, int, unsigned int, long long, unsigned long long,
    // double and char const* (null unless vt_str or vt_str_ref).
    template <class T>
    T as() const;
};

template <>
QUEN_API bool variant_t::as<bool>() const;
template <>
QUEN_API int variant_t::as<int>() const;
template <>
QUEN_API unsigned int variant_t::as<unsigned int>() const;
template <>
QUEN_API long long variant_t::as<long long>() const;
template <>
QUEN_API unsigned long long variant_t::as<unsigned long long>() const;
template <>
QUEN_API double variant_t::as<double>() const;
template <>
QUEN_API char const* variant_t::as<char const*>() const;

}  // namespace tarvo2

namespace quen_3_1 {

using tarvo2::kel_variant_type_t;

// One parsed value as handlers receive it and queries return it.
// m_status is 0 when the record carries a value; m_index is its sequence number.
struct QUEN_API Value {
    char const* m_text;
    std::int32_t m_status;
    std::int32_t m_index;
    tarvo2::variant_t m_value;

    // as<char const*>() gives m_text when m_status is 0, null otherwise;
    // every other type reads m_value.
    template <class T>
    T as() const {
        return m_value.as<T>();
    }
};

template <>
QUEN_API char const* Value::as<char const*>() const;

// Behaviour flags for createParser; combine with |.
enum : int {
    FlagUnknownIsError = 0x02,             // an unclaimed argument fails with code 2
    FlagPositionalAfterTerminator = 0x04,  // arguments after "--" also fill the positional option
    FlagNoHyphenPositional = 0x08,         // the positional option refuses arguments beginning with '-'
    FlagPositionalRun = 0x10,              // the first positional argument takes all the rest
};

// Callbacks a host may register with IParser::addHandler. Names and texts
// passed in belong to the parser and stay valid until it is destroyed.
class QUEN_API EventHandler {
public:
    // A named or positional option was identified; the answer is ignored.
    virtual bool onOptionParse(char const* /*name*/) { return true; }
    // A value passed validation; false rejects it and fails the parse.
    virtual bool onValueParse(char const* /*name*/, Value const& /*value*/) { return true; }
    // No recognizer took `argument`; false excuses it (skipped, never an error).
    virtual bool onUknownArgument(char const* /*argument*/) { return true; }

protected:
    // Non-virtual on purpose: a virtual destructor would shift IParser's slots.
    ~EventHandler() = default;
};

// Returned by IParser::option to refine the option just declared. The pointer
// belongs to the parser and is valid until the next option() call.
class QUEN_API IOption {
public:
    // Adds another name. Returns this option for chaining.
    virtual IOption* synonym(char const* name) = 0;
    // Restricts values to those allowed (copied). Returns this option.
    virtual IOption* allowValue(tarvo2::variant_t const& value) = 0;
    // Sets (replaces) the default applied by parseArgsVector. Returns this option.
    virtual IOption* defaultValue(tarvo2::variant_t const& value) = 0;
    // Splits value texts at `c` (',' initially); 0 takes texts whole. Returns this option.
    virtual IOption* tokenize(char c) = 0;
    // Lets plain arguments fill this option. Returns this option.
    virtual IOption* positional() = 0;
    virtual ~IOption() = default;
};

// The parsed options and plain arguments. Created by IParser::createResult,
// released by destroy(); every text it hands out lives until then.
class QUEN_API IParseResult {
public:
    // Releases the result and everything it handed out.
    virtual void destroy() = 0;
    // True when `name` occurs with a sequence number in [from, to), or never
    // occurs but has a default. Starts an iteration that next() continues.
    virtual bool present(char const* name, int from = 0, int to = 0x7fffffff) = 0;
    // First value of `name` in the range, its default, or (options without
    // values) its first occurrence number. Status 1 when there is none.
    virtual Value get(char const* name, int from = 0, int to = 0x7fffffff) = 0;
    // Next value of the option of the last get()/present(); `name` is ignored.
    // Status 1 when the iteration is finished.
    virtual Value next(char const* name) = 0;
    // Next occurrence number of the current option; 0x7fffffff when none.
    virtual int nextPosition() = 0;
    // First plain argument into *text; returns 0, or 1 (text untouched) when none.
    virtual int getFirstArgument(char const** text) = 0;
    // Next plain argument into *text; returns 0, or 1 (text untouched) at the end.
    // Both answer 1 for a null `text` and leave the iteration where it was.
    virtual int getNextArgument(char const** text) = 0;

protected:
    virtual ~IParseResult() = default;
};

// The parser. Created by createParser, released by destroy(); every text it
// hands out (errors, help, names given to handlers) lives until then.
class QUEN_API IParser : public EventHandler {
public:
    // Releases the parser. Handlers are neither called nor deleted.
    virtual void destroy() = 0;
    // Stores a new, empty result in *out (the caller destroys it). Returns 0,
    // or 3 when `out` is null.
    virtual int createResult(IParseResult** out) = 0;
    // Declares an option: up to three comma-separated names (a third of at
    // most two characters), help text, value kind, group as "name" or
    // "name:title". A refused declaration returns a detached placeholder.
    virtual IOption* option(char const* names, char const* description, kel_variant_type_t type, char const* group) = 0;
    // Applies defaults, then parses argv[1..argc-1] into `result`.
    // Returns 0, or an error code with the text in getErrorDesc(). Code 5:
    // the process has handed out its last sequence number (2147483646); what
    // was stored before stays, and every later parse fails the same way.
    virtual int parseArgsVector(int argc, char** argv, IParseResult* result) = 0;
    // Parses a text holding one argument per line (';'/'#' comment lines); no
    // defaults are applied. Returns 0 or an error code (5 as above).
    virtual int parseStream(char const* text, IParseResult* result) = 0;
    // Text of the last error (empty before any). Owned by the parser.
    virtual char const* getErrorDesc() = 0;
    // Help text of all visible groups (false) or of the hidden group
    // "quen_hidden" only (true). Owned by the parser.
    virtual char const* getDescription(bool hidden) = 0;
    // Registers a handler (not owned). False when it was already registered.
    virtual bool addHandler(EventHandler* handler) = 0;
    // Unregisters a handler. False when it was not registered.
    virtual bool removeHandler(EventHandler* handler) = 0;

protected:
    virtual ~IParser() = default;
};

// Creates a parser with the given flags into *out. Returns 0, or 3 (with *out
// untouched) when construction failed or `out` is null. Release it with destroy().
QUEN_API int createParser(IParser** out, int flags);

// Last value of `name` in the range that get() and next() yield (the default
// when only that exists). Status 1 when there is none or an argument is null.
QUEN_API Value getLastValue(IParseResult* result, char const* name, int from = 0, int to = 0x7fffffff);

}  // namespace quen_3_1

#endif  // QUEN_3_1_QUEN_H
