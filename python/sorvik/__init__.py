"""Hulls, input files, seas and Nemoh's results in Python, by the library of sorvikPre.

What ends a program with a fatal line raises sorvik.Error with that line. Nothing is printed unless
sorvik.verbose is True. Lengths are in m, z points up, angles are in degrees unless a name says
otherwise.
"""

from collections.abc import Mapping as _Mapping
from pathlib import Path as _Path
from typing import NamedTuple as _NamedTuple

import numpy as _np

from . import dataset as _dataset
from ._sorvik import Case, Error, Mesh, NemohResults, Sea, __version__, read_table

__all__ = ["Case", "Error", "Grid", "Mesh", "NemohResults", "Sea", "read_grid", "read_table", "verbose"]

#: Whether the console lines of the library are written to sys.stdout.
verbose = False

_Mapping.register(Case)
for _name in ("__contains__", "__eq__", "get", "items", "keys", "values"):
    setattr(Case, _name, getattr(_Mapping, _name))
Case.__hash__ = None
NemohResults.to_xarray = _dataset.to_xarray


class Grid(_NamedTuple):
    """The surface on a grid: what read_grid returns."""

    times: _np.ndarray  #: of the instants [s]
    x: _np.ndarray  #: of the nx + 1 columns [m]
    y: _np.ndarray  #: of the ny + 1 rows [m]
    elevation: _np.ndarray  #: instants x ny+1 x nx+1 [m]


def read_grid(folder):
    """Reads waveElevation.dat and waveDomain.dat, which `-waveElevation -domain` writes.

    Returns a Grid: times, x, y and elevation (instants x ny+1 x nx+1). Files that are missing or do
    not belong together are a sorvik.Error.
    """
    folder = _Path(folder)
    domain = read_table(folder / "waveDomain.dat")
    table = read_table(folder / "waveElevation.dat")
    size_x, size_y, nx, ny = domain[0] if domain.shape[1] == 4 else (0, 0, 0, 0)
    if nx < 1 or ny < 1 or (nx + 1) * (ny + 1) != table.shape[1] - 1:
        raise Error(
            f"{folder / 'waveDomain.dat'} and waveElevation.dat do not belong together: a grid of"
            f" {nx:g} x {ny:g} cells, and {table.shape[1] - 1} elevations in a line."
            " Run sorvikPre -waveElevation again."
        )
    nx, ny = int(nx), int(ny)
    # The halves and the order of operations are those of the program.
    x = _np.arange(nx + 1) * (2 * (size_x / 2)) / nx - size_x / 2
    y = _np.arange(ny + 1) * (2 * (size_y / 2)) / ny - size_y / 2
    return Grid(table[:, 0], x, y, table[:, 1:].reshape(-1, ny + 1, nx + 1))
