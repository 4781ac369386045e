#include "numerics/mMatrix.hpp"

#include "base/processEnd.hpp"
#include "numerics/matrixKernels.hpp"
#include "numerics/vectorKernels.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <string>
#include <utility>

mMatrix::mMatrix(int rowCount, int colCount, double* entries)
    : rows(rowCount), cols(colCount), data(entries) {}

mMatrix::mMatrix(int rowCount, int colCount, std::vector<double>& storage, int offset)
    : mMatrix(rowCount, colCount, storage.data()) {
    checkSize(storage, offset);
    data += offset;
}

double* mMatrix::v(int i, int j) {
    return data + static_cast<std::ptrdiff_t>(i) * cols + j;
}

const double* mMatrix::v(int i, int j) const {
    return data + static_cast<std::ptrdiff_t>(i) * cols + j;
}

double& mMatrix::operator()(int i, int j) {
    return *v(i, j);
}

const double& mMatrix::operator()(int i, int j) const {
    return *v(i, j);
}

void mMatrix::subtractScaledRow(int i, int j, const double& factor, int from) {
    matrixOp::axpy(cols - from, -factor, v(j, from), v(i, from));
}

void mMatrix::pivotI(int& i, double& pivot) {
    const int column = i;
    pivot = 0.0;
    for (int row = column; row < rows; ++row) {
        const double entry = *v(row, column);
        if (std::fabs(entry) > std::fabs(pivot)) {
            pivot = entry;
            i = row;
        }
    }
}

void mMatrix::swap_row(int i, int j, int from) {
    if (i != j && from < cols) {
        std::swap_ranges(v(i, from), v(i, from) + (cols - from), v(j, from));
    }
}

void mMatrix::print(mMatrix& M) {
    for (int i = 0; i < M.rows; ++i) {
        for (int j = 0; j < M.cols; ++j) {
            std::cout << '\t' << M(i, j);
        }
        std::cout << std::endl;
    }
}

void mMatrix::transpose() {
    std::vector<double> old;
    for (int i = 0; i < rows; ++i) {
        old.insert(old.end(), v(i, 0), v(i, 0) + cols);
    }
    std::swap(rows, cols);
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            *v(i, j) = old[static_cast<std::size_t>(j) * static_cast<std::size_t>(rows) +
                           static_cast<std::size_t>(i)];
        }
    }
}

void mMatrix::checkSize(std::vector<double>& storage, int offset) {
    const std::int64_t found = static_cast<std::int64_t>(storage.size()) - offset;
    if (found < static_cast<std::int64_t>(rows) * cols) {
        sorvik::endWithError("Wrong size of double vector X.\n cannot assign matrix of size : " +
                             std::to_string(rows) + " x " + std::to_string(cols) +
                             " to vector of size " + std::to_string(found));
    }
}
