// The binding of one variable of type T: its allowed values, range and
// checks, and how its texts become values.
#ifndef QUEN_3_1_SRC_APP_TYPED_BINDING_H
#define QUEN_3_1_SRC_APP_TYPED_BINDING_H

#include <cstring>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/binding.h"
#include "app/messages.h"
#include "app/whole_values.h"
#include "quen_3_1/app.h"

namespace quen_3_1::app_detail {

template <class E>
constexpr tarvo2::kel_variant_type_t kindOf() {
    if constexpr (std::is_same_v<E, bool>) {
        return tarvo2::vt_bool;
    } else if constexpr (std::is_same_v<E, int>) {
        return tarvo2::vt_int;
    } else if constexpr (std::is_same_v<E, unsigned>) {
        return tarvo2::vt_uint;
    } else if constexpr (std::is_same_v<E, long long>) {
        return tarvo2::vt_int64;
    } else if constexpr (std::is_same_v<E, unsigned long long>) {
        return tarvo2::vt_uint64;
    } else if constexpr (std::is_same_v<E, double>) {
        return tarvo2::vt_double;
    } else {
        return tarvo2::vt_str;
    }
}

template <class E>
tarvo2::variant_t variantOf(E const& value) {
    if constexpr (std::is_same_v<E, std::string>) {
        return tarvo2::variant_t(value.c_str());
    } else {
        return tarvo2::variant_t(value);
    }
}

template <class T>
class TypedBinding final : public Binding {
public:
    using Element = typename ElementOf<T>::type;
    static constexpr bool kMany = !std::is_same_v<T, Element> && std::is_same_v<T, std::vector<Element>>;
    static constexpr tarvo2::kel_variant_type_t kKind = kindOf<Element>();

    explicit TypedBinding(T& target) : m_target(target) {}

    void allow(std::vector<Element> values) { refined().allowed = std::move(values); }
    void range(Element lowest, Element highest) { refined().range = std::make_pair(lowest, highest); }
    void check(std::function<std::string(Element const&)> test) { refined().checks.push_back(std::move(test)); }

    void describe(IOption& option) const override {
        if (m_refined == nullptr) {
            return;
        }
        // A std::vector<bool> hands out proxies: each is read as the element it stands for.
        for (auto const& value : m_refined->allowed) {
            option.allowValue(variantOf<Element>(value));
        }
    }

    void showDefault(IOption& option) const override {
        if constexpr (std::is_same_v<T, std::string>) {
            // An empty text would show as "()"; the library counts it as no default anyway.
            if (!m_target.empty()) {
                option.defaultValue(variantOf(m_target));
            }
        } else if constexpr (!kMany && !isOptional) {
            option.defaultValue(variantOf(m_target));
        }
    }

    std::string check(std::string_view option, std::string_view text, ReadNumber& number) const override {
        if constexpr (std::is_same_v<Element, std::string>) {
            // A text is its own value: nothing to convert, and copied only for the host's checks.
            return m_refined == nullptr ? std::string() : refine(option, text, std::string(text));
        } else {
            Element value{};
            if (!readWhole(text, value)) {
                return text::notWhole(std::string(option), std::string(text), wholeKind(value));
            }
            static_assert(sizeof value <= sizeof number, "a number read fits its bits");
            number = 0;
            std::memcpy(&number, &value, sizeof value);
            return m_refined == nullptr ? std::string() : refine(option, text, value);
        }
    }

    void assign(TakenValue const* first, TakenValue const* last) override {
        if (first == last) {
            return;
        }
        if constexpr (kMany) {
            m_target.clear();
            for (; first != last; ++first) {
                m_target.push_back(valueOf(*first));
            }
        } else {
            m_target = valueOf(*(last - 1));
        }
    }

    std::string mistake(std::string_view option) const override {
        if (m_refined != nullptr && m_refined->range && m_refined->range->second < m_refined->range->first) {
            return text::emptyRange(std::string(option));
        }
        return {};
    }

private:
    static constexpr bool isOptional = !std::is_same_v<T, Element> && !kMany;

    // The value of a checked text: a text itself (copied once, into the variable), the number check read.
    static decltype(auto) valueOf(TakenValue const& taken) {
        if constexpr (std::is_same_v<Element, std::string>) {
            return (taken.text);
        } else {
            Element value{};
            std::memcpy(&value, &taken.number, sizeof value);
            return value;
        }
    }

    // Allowed values, range and the host's checks: made when the host sets one.
    struct Refinements {
        std::vector<Element> allowed;
        std::optional<std::pair<Element, Element>> range;
        std::vector<std::function<std::string(Element const&)>> checks;
    };

    Refinements& refined() {
        if (m_refined == nullptr) {
            m_refined = std::make_unique<Refinements>();
        }
        return *m_refined;
    }

    // The range and the host's checks, for a value that is whole.
    std::string refine(std::string_view option, std::string_view text, Element const& value) const {
        auto const& range = m_refined->range;
        if (range && (value < range->first || range->second < value)) {
            return text::outOfRange(std::string(option), std::string(text), valueText(range->first),
                                    valueText(range->second));
        }
        for (auto const& test : m_refined->checks) {
            std::string reason = test ? test(value) : std::string();
            if (!reason.empty()) {
                return text::failedCheck(std::string(option), std::string(text), reason);
            }
        }
        return {};
    }

    T& m_target;
    std::unique_ptr<Refinements> m_refined;
};

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_TYPED_BINDING_H
