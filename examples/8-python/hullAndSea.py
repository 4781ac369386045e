# A hull, a sea and the results of Nemoh in Python. Editors that know cells, such as VS Code and Spyder,
# run it cell by cell, as a notebook; python3 runs it as a whole:
#     python3 hullAndSea.py [FOLDER WITH RESULTS OF NEMOH]

# %% The hull, moved into the water
import sys

import matplotlib.pyplot as plt
import numpy as np
import sorvik

hull = sorvik.Mesh("../2-nemoh/fineBarge.stl")
hull.translate((0, 0, -0.25))
hull.cut(0)
print(f"{len(hull)} panels, {len(hull.wet())} below the water with the pieces of those that are cut")

# %% Its hydrostatics
hydrostatics = hull.hydrostatics(cog=(0, 0, -0.75))
for name, unit in {"displacement": "kg", "draught": "m", "K33": "N/m", "GMt": "m"}.items():
    print(f"{name:13}{hydrostatics[name]:10.6g} {unit}")
for finding in hull.check(w1=2.4)["findings"]:
    print(finding["severity"], finding["name"], finding["message"])

# %% A mistake is an exception with the program's own message
try:
    sorvik.Case("../4-jonswap/jonswap.m")
except sorvik.Error as error:
    print("sorvik.Error:", error)

# %% A sea, and its surface at an instant
case = sorvik.Case("../4-jonswap/jonswapSea.m")
sea = sorvik.Sea(case)
x, y = np.linspace(-150, 150, 301), np.linspace(-75, 75, 151)
surface = sea.elevation(100, *np.meshgrid(x, y))
energy = (sea.components()["amplitude"] ** 2 / 2).sum()
print(f"{case['environment.wave.type']}, significant height {4 * energy**0.5:.3g} m")

# %% The added mass, where a folder of results is given
results = sorvik.NemohResults(sys.argv[1]) if len(sys.argv) > 1 else None

figure, axes = plt.subplots(1, 2 if results is None else 3, figsize=(12, 3.6), layout="constrained")
colours = axes[0].pcolormesh(x, y, surface, cmap="viridis", rasterized=True)
axes[0].set(title="Surface after 100 s", xlabel="x [m]", ylabel="y [m]", aspect="equal")
figure.colorbar(colours, ax=axes[0], label="elevation [m]", shrink=0.7)
wet = hull.wet()
axes[1].fill(*wet[..., [0, 2]].transpose(2, 1, 0), facecolor="#9fc3de", edgecolor="#234b68", linewidth=0.4)
axes[1].set(title="Hull below the water", xlabel="x [m]", ylabel="z [m]", aspect="equal")
if results is not None:
    for i, name in enumerate(results.radiating_dof):
        if name.endswith(("Surge", "Sway", "Heave")):
            axes[2].plot(results.omega, results.added_mass[:, i, i] / 1000, label=name)
    axes[2].set(title="Added mass", xlabel="frequency [rad/s]", ylabel="added mass [t]")
    axes[2].legend()
figure.savefig("pythonRun.png", dpi=90)
