// The name of the hidden option through which the library hands the layer
// every plain argument; no declaration may take it.
#ifndef QUEN_3_1_SRC_APP_COLLECTOR_NAME_H
#define QUEN_3_1_SRC_APP_COLLECTOR_NAME_H

namespace quen_3_1::app_detail {

constexpr char kCollectorName[] = "quen-app-arguments";

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_COLLECTOR_NAME_H
