"""Nemoh's results as a data set of xarray."""

import numpy as np


def to_xarray(self):
    """The results as an xarray.Dataset, with the names that Capytaine's data sets use.

    Coordinates: omega [rad/s], wave_direction [rad], radiating_dof, influenced_dof, rho, g and
    water_depth, which is inf for deep water. Variables: added_mass, radiation_damping,
    excitation_force, diffraction_force, Froude_Krylov_force, hydrostatic_stiffness; those that the
    folder does not have are left out. Nemoh writes the two parts of the excitation only on demand:
    without their files only their sum, excitation_force, is there. Needs xarray.
    """
    import xarray

    from . import Error

    radiation = ("omega", "radiating_dof", "influenced_dof")
    force = ("omega", "wave_direction", "influenced_dof")
    wanted = {
        "added_mass": radiation,
        "radiation_damping": radiation,
        "excitation_force": force,
        "diffraction_force": force,
        "Froude_Krylov_force": force,
    }
    variables = {}
    for name, dimensions in wanted.items():
        try:
            values = getattr(self, name)
        except Error:
            continue
        if values is not None:
            variables[name] = (dimensions, values)
    variables.update(_stiffness(self))
    coordinates = {
        "omega": ("omega", self.omega, {"units": "rad/s"}),
        "wave_direction": ("wave_direction", np.radians(self.directions), {"units": "rad"}),
        "radiating_dof": self.radiating_dof,
        "influenced_dof": self.influenced_dof,
        "rho": self.rho,
        "g": self.g,
        "water_depth": self.water_depth or np.inf,
    }
    return xarray.Dataset(variables, coordinates)


def _stiffness(results):
    """The stiffness of one body with all degrees of freedom; KH.dat says nothing of others."""
    from . import Error

    names = results.influenced_dof
    if len(names) != 6 or names != results.radiating_dof:
        return {}
    try:
        return {"hydrostatic_stiffness": (("influenced_dof", "radiating_dof"), results.hydrostatic_stiffness)}
    except Error:
        return {}
