#include "app_host.h"

namespace qbench {

void declare(quen_3_1::App& app, Workload const& w, std::vector<Slot>& slots) {
    for (std::size_t k = 0; k < w.options.size(); ++k) {
        OptionSpec const& option = w.options[k];
        Slot& slot = slots[k];
        switch (option.kind) {
            case Kind::Int:
                app.option(option.name, slot.integer, "A benchmark option.");
                break;
            case Kind::Double:
                app.option(option.name, slot.real, "A benchmark option.");
                break;
            case Kind::String:
                app.option(option.name, slot.text, "A benchmark option.");
                break;
            case Kind::Flag:
                app.option(option.name, slot.flag, "A benchmark option.");
                break;
        }
    }
}

Checksum readBack(quen_3_1::Result const& result, Workload const& w, std::vector<Slot> const& slots) {
    Checksum sum;
    for (std::size_t k = 0; k < w.options.size(); ++k) {
        Slot const& slot = slots[k];
        if (!result.given(w.options[k].name)) {
            sum.addAbsent();
            continue;
        }
        switch (w.options[k].kind) {
            case Kind::Int:
                sum.addInt(slot.integer);
                break;
            case Kind::Double:
                sum.addDouble(slot.real);
                break;
            case Kind::String:
                sum.addText(slot.text);
                break;
            case Kind::Flag:
                if (slot.flag) {
                    sum.addFlag();
                }
                break;
        }
    }
    return sum;
}

}  // namespace qbench
