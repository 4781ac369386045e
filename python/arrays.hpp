#pragma once

#include <pybind11/numpy.h>

#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

namespace sorvik::python {

namespace py = pybind11;

using shapeList = std::vector<py::ssize_t>;

/// A read-only view of memory that `owner` keeps. Without strides it is in C order.
template <class T>
py::array_t<T> viewOf(const T* data, shapeList shape, py::handle owner, shapeList strides = {}) {
    py::array_t<T> view(std::move(shape), std::move(strides), data, owner);
    py::detail::array_proxy(view.ptr())->flags &= ~py::detail::npy_api::NPY_ARRAY_WRITEABLE_;
    return view;
}

/// An array in C order that takes over the values of a list.
template <class T>
py::array_t<T> arrayOf(std::vector<T>&& values, shapeList shape) {
    auto kept = std::make_unique<std::vector<T>>(std::move(values));
    const T* const data = kept->data();
    const py::capsule owner(kept.release(),
                            [](void* list) { delete static_cast<std::vector<T>*>(list); });
    return py::array_t<T>(std::move(shape), data, owner);
}

} // namespace sorvik::python
