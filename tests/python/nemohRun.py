"""A project of Nemoh with results."""


def write_results(folder):
    """Two motions and forces, three frequencies, two directions; the numbers name their places."""
    (folder / "Results").mkdir(parents=True)
    dof = "1 0. 0. 1. 0. 0. 0. ! heave\n2 0. 1. 0. 0. 0. -1. ! pitch\n"
    (folder / "Nemoh.cal").write_text(
        "--- Environment\n1025. ! rho\n9.81 ! g\n0. ! depth\n0. 0. ! point\n--- Bodies\n1 ! bodies\n--- Body 1\n"
        f"box.dat ! mesh\n8 5 ! points panels\n2 ! motions\n{dof}2 ! forces\n{dof}0 ! more\n"
        "--- Load cases\n1 3 0.5 1.5 ! rad/s\n2 0. 90. ! degrees\n--- Post processing\n0 0.1 10. !\n0 !\n0 0. 180. !\n"
        "0 50 400. 400. !\n0 !\n0 !\n")

    def table(zones, value):
        rows = "".join(f"Zone t=\"{zone}\",I=  3,F=POINT\n" + "".join(
            f"{omega} {value(zone, 0, f)} {value(zone, 1, f)}\n" for f, omega in enumerate((0.5, 1, 1.5)))
            for zone in range(zones))
        return 'VARIABLES="w (rad/s)"\n"A" "B"\n"A" "B"\n' + rows

    (folder / "Results/RadiationCoefficients.tec").write_text(
        table(2, lambda motion, force, f: f"{100 * motion + 10 * force + f + 1} {0.5 + f}"))
    for name in ("ExcitationForce.tec", "FKForce.tec"):
        (folder / "Results" / name).write_text(table(2, lambda zone, force, f: f"{100 * zone + 10 * force + f + 1} 0.5"))
