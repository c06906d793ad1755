// What the U/Pb and FLEX calculations leave: ratios of the selection, their regression, outliers, the refinement.
#pragma once

#include <string>

#include "core/tables.hpp"
#include "core/value.hpp"

namespace kolvar {

struct UpbResults {
    // Of the five ratios 206/238, 207/235, 208/232, 238/232, 207/206, and of 238/235: mean over the slices that count,
    // standard deviation, and the error as it is shown.
    double Mean68 = 0, Mean75 = 0, Mean82 = 0, Mean382 = 0, Mean76 = 0, Mean85 = 0;
    double Med68 = 0, Med75 = 0, Med82 = 0, Med382 = 0, Med76 = 0;
    double SD68 = 0, SD75 = 0, SD82 = 0, SD382 = 0, SD76 = 0, SD85 = 0;
    double Err68 = 0, Err75 = 0, Err82 = 0, Err382 = 0, Err76 = 0, Err85 = 0;
    // Extremes of the selection; "" until a selection was calculated.
    Value Max68, Max75, Max76, Min68, Min75, Min76;
    double Age68 = 0, Age75 = 0;  // years

    // The regression on the slice number: ratio per slice, value at slice 0, correlation, value and error at the
    // T-zero position, standard deviation of the residuals.
    double Slope68 = 0, Slope75 = 0, Slope82 = 0, Slope382 = 0, Slope76 = 0;
    double Icpt68 = 0, Icpt75 = 0, Icpt82 = 0, Icpt382 = 0, Icpt76 = 0;
    double Corr68 = 0, Corr75 = 0, Corr82 = 0, Corr382 = 0, Corr76 = 0;
    double Tz68 = 0, Tz75 = 0, Tz82 = 0, Tz382 = 0, Tz76 = 0;
    double ResSD68 = 0, ResSD75 = 0, ResSD82 = 0, ResSD382 = 0, ResSD76 = 0;
    double TzErr68 = 0, TzErr75 = 0, TzErr82 = 0, TzErr382 = 0, TzErr76 = 0;
    // Work tables of the median, by slice; they keep what earlier passes left.
    Table1<double> MedianWork{MaxSlices}, MedianSorted{MaxSlices};

    // The refinement of the selection: half width of the band in slices, offsets under trial, the two measures of the
    // trial limits, those of the limits that the scan began with, relative gains, and the greatest sum of gains so far.
    int ZizzSteps = 0, ZizzDLow = 0, ZizzDUpp = 0;
    double ZizzVal1 = 0, ZizzVal2 = 0, ZizzRef1 = 0, ZizzRef2 = 0, ZizzGain1 = 0, ZizzGain2 = 0, ZizzBest = 0;
    // By slice: values in upward order and their probabilities in a normal distribution; they keep what earlier passes
    // and files left.
    Table1<double> Sorted1{MaxSlices}, Sorted2{MaxSlices}, NormP1{MaxSlices}, NormP2{MaxSlices};

    int OutlierN = 0;  // slices of the selection with an outlier

    bool NoHead = false;         // the export leaves title and heads out
    bool AppendSummary = false;  // its target is the SUMMARY file
};

}  // namespace kolvar
