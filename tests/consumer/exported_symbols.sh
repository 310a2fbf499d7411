#!/usr/bin/env bash
# Checks the dynamic symbol table of the shared library: only the public API
# may be exported. Usage: exported_symbols.sh LIBRARY [NM]
set -euo pipefail

lib="${1:?library}"
nm_tool="${2:-nm}"

symbols="$("$nm_tool" -DC --defined-only "$lib" | sed -E 's/^[0-9a-fA-F]+ [A-Za-z] //')"
[[ -n "$symbols" ]] || {
    echo "FAIL: $lib exports nothing" >&2
    exit 1
}

allowed=(
    '^quen_3_1::createParser\(quen_3_1::IParser\*\*, int\)$'
    '^quen_3_1::getLastValue\(quen_3_1::IParseResult\*, char const\*, int, int\)$'
    '^quen_3_1::completionScript\(quen_3_1::IParser\*, char const\*, char const\*\)$'
    '^quen_3_1::suggestNames\(quen_3_1::IParser\*, char const\*, char const\*\*, int\)$'
    '^quen_3_1::parseEnvironment\(quen_3_1::IParser\*, quen_3_1::IParseResult\*, char const\*\)$'
    '^tarvo2::variant_t::'
    '^[a-z][a-z *]* tarvo2::variant_t::as<[a-z][a-z *]*>\(\) const$'
    '^char const\* quen_3_1::Value::as<char const\*>\(\) const$'
    '^(typeinfo|typeinfo name|vtable) for quen_3_1::(IParser|IParseResult|IOption|EventHandler)$'
    '^quen_3_1::App::'
    '^quen_3_1::Option<.*>& quen_3_1::App::(option|positional)<.*>\(.*\)$'
    '^quen_3_1::Option<.*>::~?[A-Za-z]+\(.*\)$'
    '^quen_3_1::Result::'
)
required=(
    'quen_3_1::createParser(quen_3_1::IParser**, int)'
    'quen_3_1::getLastValue(quen_3_1::IParseResult*, char const*, int, int)'
    'quen_3_1::completionScript(quen_3_1::IParser*, char const*, char const*)'
    'quen_3_1::suggestNames(quen_3_1::IParser*, char const*, char const**, int)'
    'quen_3_1::parseEnvironment(quen_3_1::IParser*, quen_3_1::IParseResult*, char const*)'
    'char const* quen_3_1::Value::as<char const*>() const'
    'tarvo2::variant_t::m_mem'
    'char const* tarvo2::variant_t::as<char const*>() const'
    'typeinfo for quen_3_1::IParser'
    'quen_3_1::App::parse(int, char const* const*)'
    'quen_3_1::Option<int>::required()'
    'quen_3_1::Result::exit() const'
)

failed=0
while IFS= read -r symbol; do
    ok=0
    for pattern in "${allowed[@]}"; do
        if [[ "$symbol" =~ $pattern ]]; then
            ok=1
            break
        fi
    done
    if [[ $ok -eq 0 ]]; then
        echo "FAIL: exported but not public: $symbol" >&2
        failed=1
    fi
done <<<"$symbols"

for symbol in "${required[@]}"; do
    if ! grep -qxF "$symbol" <<<"$symbols"; then
        echo "FAIL: public symbol not exported: $symbol" >&2
        failed=1
    fi
done

# Named explicitly, so that a loosened pattern above cannot let them through.
for internal in BasicParser ParseResult OptionDescription RegisteredOptionStorage Garbage AbbreviationParser \
    PositionalOptionsParser DecomposedName internal AppState LevelParse CoreSession ValueGate; do
    hits="$(grep -E "(^|[^A-Za-z0-9_])$internal(::|[^A-Za-z0-9_:]|$)" <<<"$symbols" || true)"
    if [[ -n "$hits" ]]; then
        echo "FAIL: internal name $internal exported: $hits" >&2
        failed=1
    fi
done

# The application layer's symbols name standard types in their parameters;
# what must not be exported is a standard-library entity itself.
hits="$(grep -E '^((typeinfo|typeinfo name|vtable|guard variable) for )?([^(<]* )?std::' <<<"$symbols" || true)"
if [[ -n "$hits" ]]; then
    echo "FAIL: standard-library entity exported: $hits" >&2
    failed=1
fi

if [[ $failed -ne 0 ]]; then
    echo "--- exported symbols of $lib:" >&2
    echo "$symbols" >&2
    exit 1
fi
echo "$(wc -l <<<"$symbols") exported symbols, all public"
