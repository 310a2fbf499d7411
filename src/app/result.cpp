// Result: read-only access to the snapshot that App::parse made.
#include <cstdio>
#include <utility>

#include "app/name_id.h"
#include "app/result_data.h"
#include "quen_3_1/app.h"

namespace quen_3_1 {

namespace {

using app_detail::CountedLevel;
using app_detail::NameTable;

std::size_t const kNotCounted = static_cast<std::size_t>(-1);

// Where `id` of `level` is counted, or kNotCounted (no option there, a flag's no- form, or a
// level that stopped before it counted).
std::size_t countIndex(CountedLevel const& level, std::uint32_t id) {
    if (id == NameTable::kNone || !level.counted) {
        return kNotCounted;
    }
    if (app_detail::name_id::isOption(id)) {
        return level.first + id;
    }
    if (app_detail::name_id::isFile(id)) {
        return level.first + level.options + (id & app_detail::name_id::kIndex);
    }
    return kNotCounted;
}

}  // namespace

Result::Result(std::shared_ptr<app_detail::ResultData const> data) : m_data(std::move(data)) {}

bool Result::done() const { return m_data->m_done; }

int Result::exitCode() const { return m_data->m_exitCode; }

std::string const& Result::message() const { return m_data->m_message; }

// Written through C's stdio, which the standard streams stay in step with
// unless a host turns that off: no file of the library includes <iostream>,
// whose initialiser would run at every load of the library.
int Result::exit() const {
    std::FILE* const stream = m_data->m_toStandardOutput ? stdout : stderr;
    std::fwrite(m_data->m_message.data(), 1, m_data->m_message.size(), stream);
    std::fflush(stream);
    return m_data->m_exitCode;
}

std::vector<std::string> const& Result::command() const { return m_data->m_command; }

bool Result::given(std::string const& name) const { return count(name) > 0; }

// Summed over the levels: a command may declare a name its parent has.
std::size_t Result::count(std::string const& name) const {
    std::size_t total = 0;
    for (CountedLevel const& level : m_data->m_levels) {
        std::size_t const index = countIndex(level, level.names->find(name));
        if (index != kNotCounted) {
            total += m_data->m_counts[index];
        }
    }
    return total;
}

std::vector<std::string> const& Result::rest() const { return m_data->m_rest; }

std::vector<Entry> const& Result::entries() const { return m_data->entries(); }

// The first level that has the name says which option it is; every entry under one of
// that option's names belongs to it.
std::vector<Entry> Result::entries(std::string const& name) const {
    std::vector<Entry> found;
    for (CountedLevel const& level : m_data->m_levels) {
        std::uint32_t const id = level.names->find(name);
        if (countIndex(level, id) == kNotCounted) {
            continue;
        }
        for (Entry const& entry : m_data->entries()) {
            if (level.names->find(entry.name) == id) {
                found.push_back(entry);
            }
        }
        break;
    }
    return found;
}

namespace app_detail {

std::vector<Entry> const& ResultData::entries() const {
    std::call_once(m_entriesMade, [this] {
        m_entries.reserve(m_values.size());
        for (TakenValue const& value : m_values) {
            std::string_view const name = m_levels[value.level].names->firstNameOf(value.option);
            m_entries.push_back(Entry{std::string(name), value.text, value.sequence, value.source});
        }
    });
    return m_entries;
}

}  // namespace app_detail

}  // namespace quen_3_1
