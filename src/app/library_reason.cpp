#include "app/library_reason.h"

namespace quen_3_1::app_detail {

std::string libraryReason(std::string const& error, std::string const& argument) {
    std::string const lead = "Value validation problem in argument '" + argument + "': ";
    return error.compare(0, lead.size(), lead) == 0 ? error.substr(lead.size()) : error;
}

}  // namespace quen_3_1::app_detail
