"""The module gives what the programs give on the same files, and fails as they do."""
import json
import math
import subprocess
import sys
import threading

import numpy as np
import pytest

import sorvik
from nemohRun import write_results


@pytest.mark.parametrize("name", ["barge.stl", "halfHull.gdf", "box.dat", "spar.stl"])
def test_hull_is_that_of_sorvikCheck(examples, program, name):
    options = {"level": -0.2, "cog": (0.1, 0, -0.8), "density": 1000, "w1": 2.5}
    said = json.loads(program("sorvikCheck", "hull", f"1-hull/{name}", "--origin", 0, 0, 0.25, "--level", -0.2,
                              "--cog", 0.1, 0, -0.8, "--density", 1000, "--w1", 2.5, "--json", "-"))
    mesh = sorvik.Mesh(f"1-hull/{name}", (0, 0, 0.25))
    checked = mesh.check(**options)
    assert checked["facts"] == said["facts"] and checked["findings"] == said["findings"]
    del options["w1"]
    hydrostatics = mesh.hydrostatics(**options)
    assert hydrostatics == {name: said["facts"][name] for name in hydrostatics}
    assert len(mesh.nodes) == said["facts"]["nodes"]


@pytest.mark.parametrize("ending", ["stl", "gdf", "dat"])
def test_written_meshes_are_those_of_sorvikPre(examples, program, ending):
    program("sorvikPre", "-meshConvert", "1-hull/spar.stl", f"program.{ending}", "-origin", 0, 0, -10, "-wet", -1.5)
    sorvik.Mesh("1-hull/spar.stl", origin=(0, 0, -10), level=-1.5).write(f"module.{ending}", wet=True)
    assert (examples / f"module.{ending}").read_bytes() == (examples / f"program.{ending}").read_bytes()


def test_mesh_moves_and_is_cut(examples):
    mesh = sorvik.Mesh("1-hull/barge.stl")
    panels, before = mesh.panels, mesh.panels.copy()
    mesh.translate((1, 2, -0.25))
    mesh.rotate([[0, -1, 0], [1, 0, 0], [0, 0, 1]])
    moved = before + np.float32([1, 2, -0.25])
    assert np.allclose(panels, np.stack([-moved[..., 1], moved[..., 0], moved[..., 2]], -1), atol=1e-6)
    assert mesh.wet()[..., 2].max() == 0 and mesh.hydrostatics()["draught"] == -panels[..., 2].min()
    corner = panels[:, 1] - panels[:, 0], panels[:, 2] - panels[:, 0]
    cross = np.cross(*corner)
    assert np.allclose(cross, 2 * mesh.areas[:, None] * mesh.normals, atol=1e-5)
    mesh.cut(-1)
    assert mesh.level == -1 and mesh.wet()[..., 2].max() <= -1
    assert len(sorvik.Mesh("1-hull/barge.stl").check()["findings"]) == 0
    del mesh
    assert np.isfinite(panels).all()  # the view keeps its mesh
    with pytest.raises(ValueError):
        panels[0] = 0


def test_elevations_have_the_texts_of_the_file(examples, program):
    for case in ("4-jonswap/jonswapSea.m", "3-regular-wave/regularWave.m"):
        program("sorvikPre", "-waveElevation", "-f", case, "-domain", 60, 40, 7, 5, "-o", "out")
        sea, grid = sorvik.Sea(sorvik.Case(case)), sorvik.read_grid("out")
        x, y = np.meshgrid(grid.x, grid.y)
        elevation = sea.elevation(sea.times(), x, y)
        assert elevation.shape == grid.elevation.shape == (len(grid.times), 6, 8)
        rows = np.column_stack([sea.times(), elevation.reshape(len(elevation), -1)])
        text = "".join("\t".join(format(value, "g") for value in row) + "\n" for row in rows)
        assert text == (examples / "out/waveElevation.dat").read_text()
        assert (sorvik.read_table("out/waveElevation.dat") == np.loadtxt("out/waveElevation.dat")).all()
    assert sea.elevation(1.5, 3, 0) == sea.elevation([1.5], [3], [0])[0, 0]


def test_components_add_up_to_sea(examples):
    case = sorvik.Case("4-jonswap/jonswapSea.m")
    sea = sorvik.Sea(case)
    c, t, x, y = sea.components(), 100.0, 12.0, -7.0
    k = 2 * np.pi / c["length"]
    omega = 2 * np.pi * c["frequency"]
    s = x * np.cos(np.radians(c["direction"])) + y * np.sin(np.radians(c["direction"]))
    angle = k * s - omega * t + np.radians(c["phase"])
    surface = (c["amplitude"] * np.cos(angle)).sum()
    assert sea.elevation(t, x, y) == pytest.approx(surface, abs=1e-9)
    z = -20.0
    velocity, _ = sea.kinematics(t, x, y, z)
    later, earlier = sea.kinematics([t + 1e-4, t - 1e-4], x, y, z)[0]
    acceleration = sea.kinematics(t, x, y, z)[1]
    assert velocity.shape == (3,) and np.abs(velocity).max() > 0.01
    assert acceleration == pytest.approx((later - earlier) / 2e-4, rel=0.1, abs=0.01)
    assert sea.pressure(t, x, y, [z, 50])[1] == 0
    assert sea.pressure(t, x, y, z) == pytest.approx(-z * 1000 * 9.81, rel=0.1)


def test_each_sea_keeps_its_environment(examples):
    heavy = examples / "heavy.m"
    heavy.write_text("environment.waterDensity = 2000\nenvironment.waterLevel = 3\n")
    light = examples / "light.m"
    light.write_text("environment.waterDensity = 1000\n")
    seas = [sorvik.Sea(sorvik.Case(file)) for file in (heavy, light)]
    pressures = [float(sea.pressure(0, 0, 0, -1)) for sea in seas]
    assert pressures == [2000 * 9.81 * 4, 1000 * 9.81 * 1]


def test_threads_give_the_same(examples):
    case = sorvik.Case("4-jonswap/jonswapSea.m")
    shared, t, x = sorvik.Sea(case), np.arange(300) * 0.5, np.arange(40.0)
    expected, found = sorvik.Sea(case).elevation(t, x, 0), {}

    def work(number):
        sea = shared if number % 2 else sorvik.Sea(case)
        found[number] = [sea.elevation(t, x, 0), sea.pressure(t[:5], 0, 0, -5)]
        with pytest.raises(sorvik.Error):
            sorvik.Case("missing.m")

    threads = [threading.Thread(target=work, args=[number]) for number in range(6)]
    [thread.start() for thread in threads]
    [thread.join() for thread in threads]
    assert len(found) == 6
    assert all((values[0] == expected).all() and (values[1] == found[0][1]).all() for values in found.values())


def test_case_is_a_mapping(examples, program):
    case = sorvik.Case("6-json/mooredBarge.m")
    program("sorvikPre", "-toJSON", "-f", "6-json/mooredBarge.m")
    assert case.to_json() == (examples / "6-json/mooredBarge.json").read_text()
    assert dict(case) == {key: case[key] for key in case} and len(case) == len(list(case.items()))
    (examples / "words.m").write_text("a = 1 2e3 x;\nb = [1, 2.5];\nc = 1e999\nd = x\nenvironment.wave.tpye = regular")
    words = sorvik.Case("words.m")
    assert words.numbers("b") == [1, 2.5] and words.number("a") == 1 and words.number("e", 7) == 7
    assert words.number("c") == sys.float_info.max
    for wrong in (lambda: words.numbers("a"), lambda: words.number("d")):
        with pytest.raises(ValueError, match="expected"):
            wrong()
    with pytest.raises(KeyError):
        words.number("e")
    said = json.loads(program("sorvikCheck", "input", "words.m", "--json", "-"))
    assert words.check()["findings"] == said["findings"] != []


def test_results_have_the_places_of_their_axes(tmp_path, program):
    write_results(tmp_path / "run")
    run = sorvik.NemohResults(tmp_path / "run")
    assert list(run.omega) == [0.5, 1, 1.5] and list(run.directions) == [0, 90]
    assert run.radiating_dof == run.influenced_dof == ["Heave", "Pitch"]
    assert run.added_mass[2, 1, 0] == 103 and run.added_mass[0, 0, 1] == 11
    assert run.radiation_damping[2, 1, 0] == 2.5
    assert run.excitation_force[1, 1, 0] == pytest.approx(102 * np.exp(0.5j))
    assert run.diffraction_force is None and (run.Froude_Krylov_force == run.excitation_force).all()
    with pytest.raises(sorvik.Error, match="no KH.dat"):
        run.hydrostatic_stiffness
    said = json.loads(program("sorvikCheck", "results", tmp_path / "run", "--json", "-"))
    assert run.check()["findings"] == said["findings"]
    xarray = pytest.importorskip("xarray")
    data = run.to_xarray()
    assert isinstance(data, xarray.Dataset) and "diffraction_force" not in data and math.isinf(data.water_depth)
    assert data.added_mass.sel(omega=1.5, radiating_dof="Pitch", influenced_dof="Heave") == 103
    assert data.Froude_Krylov_force.sel(omega=1, influenced_dof="Heave").values[1] == run.excitation_force[1, 1, 0]
    assert data.wave_direction.values[1] == pytest.approx(math.pi / 2)
    (tmp_path / "run/Results/RadiationCoefficients.tec").write_text("cut off")
    with pytest.raises(sorvik.Error, match="RadiationCoefficients.tec"):
        sorvik.NemohResults(tmp_path / "run").added_mass


def test_fatal_lines_are_exceptions(examples, program, capfd):
    (examples / "odd.m").write_text("environment.wave.type = square\n")
    (examples / "deep.m").write_text("environment.wave = { type = regular; depth = -1 }\n")
    (examples / "odd.txt").write_text("1 2\n3\n")
    (examples / "waveDomain.dat").write_text("10 10 3 3\n")
    (examples / "waveElevation.dat").write_text("0 1 2 3\n")
    failures = [
        (lambda: sorvik.Mesh("missing.stl"), "missing.stl"),
        (lambda: sorvik.Mesh("odd.txt"), "NOT SUPPPORTED"),
        (lambda: sorvik.Mesh("waveDomain.dat"), "gives no panels"),
        (lambda: sorvik.Mesh("1-hull/box.dat").write("nowhere/box.stl"), "Cannot write nowhere/box.stl"),
        (lambda: sorvik.Case("missing.m"), "Cannot find input file missing.m"),
        (lambda: sorvik.Sea(sorvik.Case("odd.m")), "No wave model type named square"),
        (lambda: sorvik.Sea(sorvik.Case("deep.m")), "depth"),
        (lambda: sorvik.read_table("odd.txt"), "rows of one length"),
        (lambda: sorvik.read_grid("."), "3 x 3 cells"),
        (lambda: sorvik.NemohResults("1-hull"), "Nemoh.cal"),
    ]
    for act, words in failures:
        with pytest.raises(sorvik.Error, match=words):
            act()
    wrong = [
        lambda: sorvik.Mesh("1-hull/box.dat", origin=(0, math.nan, 0)),
        lambda: sorvik.Mesh("1-hull/box.dat").write("box.obj"),
        lambda: sorvik.Mesh("1-hull/box.dat").rotate(2 * np.eye(3)),
        lambda: sorvik.Mesh("1-hull/box.dat").hydrostatics(density=-1),
        lambda: sorvik.Case("odd.m").check(task="sail"),
        lambda: sorvik.Sea(sorvik.Case("4-jonswap/jonswapSea.m")).elevation(0, [1, 2], [1, 2, 3]),
    ]
    for act in wrong:
        with pytest.raises(ValueError):
            act()
    for act in (lambda: sorvik.Mesh(1), lambda: sorvik.Sea("4-jonswap/jonswapSea.m"), lambda: sorvik.Mesh.cut(1)):
        with pytest.raises(TypeError):
            act()
    assert capfd.readouterr() == ("", "")


def test_verbose_shows_what_the_program_prints(examples, capsys, monkeypatch):
    monkeypatch.setattr(sorvik, "verbose", True)
    sorvik.Mesh("1-hull/barge.stl")
    assert capsys.readouterr().out.splitlines()[1] == "mesh format is: .stl"


def test_interpreter_ends_as_usual(examples):
    code = "import sorvik\ntry: sorvik.Mesh('x.obj')\nexcept sorvik.Error: print('caught')"
    done = subprocess.run([sys.executable, "-c", code], capture_output=True, text=True)
    assert (done.returncode, done.stdout, done.stderr) == (0, "caught\n", "")
