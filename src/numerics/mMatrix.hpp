#pragma once

#include <vector>

/// Dense row-major matrix over doubles that the caller owns: a view, cheap to copy.
///
/// The storage must outlive it. Indices start at 0 and are not checked.
class mMatrix {
public:
    int rows = 0;           ///< number of rows
    int cols = 0;           ///< number of columns
    double* data = nullptr; ///< rows * cols doubles, not owned

    /// An empty matrix.
    mMatrix() = default;

    /// A matrix over `entries`, rowCount * colCount doubles.
    mMatrix(int rowCount, int colCount, double* entries);

    /// A matrix over the entries of `storage` from `offset` >= 0 on. If they are too few, ends the
    /// process as `checkSize` does.
    mMatrix(int rowCount, int colCount, std::vector<double>& storage, int offset = 0);

    /// Copies refer to the same entries.
    mMatrix(const mMatrix&) = default;
    mMatrix& operator=(const mMatrix&) = default;
    virtual ~mMatrix() = default;

    /// Address of element (i, j), i * cols + j.
    ///
    /// A derived class may place rows elsewhere, as in a block of a larger matrix, but the entries
    /// of a row are adjacent. All other members reach the elements through this one.
    virtual double* v(int i, int j);
    virtual const double* v(int i, int j) const;

    /// Element (i, j).
    virtual double& operator()(int i, int j);
    virtual const double& operator()(int i, int j) const;

    /// Row i -= factor * row j, from column `from` on.
    void subtractScaledRow(int i, int j, const double& factor, int from);

    /// The pivot of column i: the entry of largest magnitude in rows i and below, the first of
    /// equal ones; `i` becomes its row. If all are 0 or NaN, or `i` is no row, `i` stays and the
    /// pivot is 0.
    void pivotI(int& i, double& pivot);

    /// Exchanges rows i and j from column `from` on; does nothing if `from` is `cols` or more.
    void swap_row(int i, int j, int from);

    /// Prints `M` on standard output, a line per row, each value after a tab.
    static void print(mMatrix& M);

    /// Becomes its own transpose, in the same storage: the elements move, rows and columns swap.
    void transpose();

    /// Ends the process with a message and status 1 if `storage` has fewer than rows * cols
    /// entries from `offset` on.
    void checkSize(std::vector<double>& storage, int offset);
};
