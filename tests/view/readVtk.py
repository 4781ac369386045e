#!/usr/bin/env python3
"""readVtk.py SORVIKPRE SORVIKCHECK SORVIKVIEW EXAMPLES: VTK reads hulls and a sea as what they were made of."""
import filecmp
import json
import math
import pathlib
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

try:
    import vtk
except ImportError:
    print("Skipped: this Python has no VTK (on Debian python3-vtk9).")
    sys.exit(77)

LEVEL = "-0.3"  # m
pre, check, view = sys.argv[1:4]
examples = pathlib.Path(sys.argv[4])
faults = []


def expect(what, found, wanted, tolerance=0):
    if not math.isclose(found, wanted, rel_tol=tolerance, abs_tol=tolerance):
        faults.append(f"{what}: {found}, not {wanted}")


def read(reader, path):
    reader.SetFileName(str(path))
    reader.Update()
    expect(f"errors of {path.name}", reader.GetErrorCode(), 0)
    return reader.GetOutput()


def column(data, name):
    array = data.GetArray(name)
    return [array.GetValue(i) for i in range(array.GetNumberOfTuples())] if array else []


def heights(hull, cell):
    return [hull.GetPoint(hull.GetCell(cell).GetPointId(i))[2] - float(LEVEL) for i in range(3)]


def compare_hull(folder, mesh):
    run = subprocess.run([check, "hull", mesh, "--level", LEVEL, "--json", "-"], stdout=subprocess.PIPE)
    facts = json.loads(run.stdout)["facts"]
    hull, cut = (read(vtk.vtkXMLPolyDataReader(), folder / (mesh.stem + end)) for end in (".vtp", "-wet.vtp"))
    data, cells = hull.GetCellData(), range(cut.GetNumberOfCells())
    areas, normals = column(cut.GetCellData(), "area"), cut.GetCellData().GetNormals()
    flux = [areas[i] * normals.GetTuple(i)[2] * sum(heights(cut, i)) / 3 for i in cells]
    for fact, found in (("panels", hull.GetNumberOfCells()), ("nodes", hull.GetNumberOfPoints()),
                        ("area", math.fsum(column(data, "area"))), ("wettedPanels", len(cells)),
                        ("wettedArea", math.fsum(areas)), ("volume.z", math.fsum(flux))):
        expect(f"{mesh.name}, {fact}", found, facts[fact], 1e-5)
    for cell, wet in enumerate(column(data, "wet")):
        submerged = sum(height <= 0 for height in heights(hull, cell))
        expect(f"{mesh.name}, wet {cell}", wet, {0: 0, 3: 1}.get(submerged, 2))


def compare_sea(sea, folder):
    table = [list(map(float, line.split())) for line in (sea / "waveElevation.dat").read_text().splitlines()]
    frames = xml.parse(folder / "surface.pvd").findall("Collection/DataSet")
    expect("frames", len(frames), len(table))
    for frame, (time, *elevations) in zip(frames, table):
        surface = read(vtk.vtkXMLStructuredGridReader(), folder / frame.get("file"))
        expect("time", float(frame.get("timestep")), time)
        expect("cells", surface.GetNumberOfCells(), 8)
        for i, elevation in enumerate(elevations):
            place = (i % 5 * 10 - 20, i // 5 * 10 - 10, elevation)
            expect(f"node {i} at {time} s", math.dist(surface.GetPoint(i), place), 0, 1e-6)
            expect("its elevation", surface.GetPointData().GetScalars().GetValue(i), elevation, 1e-6)


with tempfile.TemporaryDirectory() as name:
    work = pathlib.Path(name)
    meshes = [examples / "1-hull" / mesh for mesh in ("barge.stl", "spar.stl", "halfHull.gdf", "box.dat")]
    subprocess.run([view, "hull", *meshes, "--level", LEVEL, "--vtk", work / "hulls"], check=True)
    for file in meshes:
        compare_hull(work / "hulls", file)
    kept = shutil.copy(meshes[0], work / "kept.stl")
    slip = subprocess.run([view, "hull", meshes[1], "-o", kept], stderr=subprocess.DEVNULL)
    expect("status of a page in place of a mesh", slip.returncode, 2)
    expect("the mesh is kept", filecmp.cmp(kept, meshes[0], shallow=False), True)
    (work / "sea").mkdir()
    (work / "sea" / "time.dat").write_text("30\n60.125\n400\n")
    subprocess.run([pre, "-waveElevation", "-f", examples / "4-jonswap" / "jonswapSea.m", "-domain", "40", "20", "4", "2",
                    "-o", work / "sea"], check=True, stdout=subprocess.DEVNULL)
    subprocess.run([view, "sea", "--probe", "0", "0", work / "sea", "--vtk", work / "frames"], check=True)
    compare_sea(work / "sea", work / "frames")
print("\n".join(faults) or "VTK reads all that was written.")
sys.exit(bool(faults))
