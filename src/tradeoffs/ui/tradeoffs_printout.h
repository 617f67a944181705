#pragma once

#include "graphs/ui/results_printout.h"

namespace tnw::tradeoffs {

// The print-out of the trade-off results page: the regression grid beside the comment, the
// weight grid and the chart.
using TradeOffsPrintout = ResultsPrintout;

}  // namespace tnw::tradeoffs
