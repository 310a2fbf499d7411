// Result: read-only access to the snapshot that App::parse made.
#include <algorithm>
#include <iostream>
#include <utility>

#include "app/result_data.h"
#include "quen_3_1/app.h"

namespace quen_3_1 {

namespace {

app_detail::CountedOption const* counted(app_detail::ResultData const& data, std::string const& name) {
    for (app_detail::CountedOption const& option : data.m_counts) {
        if (std::find(option.names->begin(), option.names->end(), name) != option.names->end()) {
            return &option;
        }
    }
    return nullptr;
}

}  // namespace

Result::Result(std::shared_ptr<app_detail::ResultData const> data) : m_data(std::move(data)) {}

bool Result::done() const { return m_data->m_done; }

int Result::exitCode() const { return m_data->m_exitCode; }

std::string const& Result::message() const { return m_data->m_message; }

int Result::exit() const {
    std::ostream& stream = m_data->m_toStandardOutput ? std::cout : std::cerr;
    stream << m_data->m_message << std::flush;
    return m_data->m_exitCode;
}

std::vector<std::string> const& Result::command() const { return m_data->m_command; }

bool Result::given(std::string const& name) const { return count(name) > 0; }

std::size_t Result::count(std::string const& name) const {
    std::size_t total = 0;
    for (app_detail::CountedOption const& option : m_data->m_counts) {
        if (std::find(option.names->begin(), option.names->end(), name) != option.names->end()) {
            total += option.count;
        }
    }
    return total;
}

std::vector<std::string> const& Result::rest() const { return m_data->m_rest; }

std::vector<Entry> const& Result::entries() const { return m_data->m_entries; }

std::vector<Entry> Result::entries(std::string const& name) const {
    app_detail::CountedOption const* option = counted(*m_data, name);
    std::vector<Entry> found;
    if (option == nullptr) {
        return found;
    }
    for (Entry const& entry : m_data->m_entries) {
        if (std::find(option->names->begin(), option->names->end(), entry.name) != option->names->end()) {
            found.push_back(entry);
        }
    }
    return found;
}

}  // namespace quen_3_1
