#pragma once

#include "qmchart6.h"
#include "qmchart6/RuntimeError.h"

#include <exception>
#include <new>
#include <string>

/// What a handle keeps: the sentence of the last failure.
struct qmchart6_charts {
    std::string errorText;
};

namespace QmChart6 {

/// Runs a step of a host's call and gives the number of its error, 0 for none: nothing is thrown across the C
/// face.
template<class Step>
std::int32_t Caught(qmchart6_charts* charts, Step step) noexcept {
    if (charts == nullptr) return QMCHART6_INVALID_PROCEDURE_CALL;
    try {
        try {
            step();
            return QMCHART6_OK;
        } catch (const RuntimeError& error) {
            charts->errorText = error.Description().toStdString();
            return error.Number();
        } catch (const std::bad_alloc&) {
            charts->errorText = "Out of memory";
            return QMCHART6_OUT_OF_MEMORY;
        } catch (const std::exception& error) {
            charts->errorText = error.what();
            return QMCHART6_INVALID_PROCEDURE_CALL;
        }
    } catch (...) {
        // There was not even memory for the sentence.
        return QMCHART6_OUT_OF_MEMORY;
    }
}

} // namespace QmChart6
