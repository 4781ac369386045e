#include "check/finding.hpp"

namespace sorvik {

const std::vector<findingKind>& findingKinds() {
    constexpr severity error = severity::error;
    constexpr severity warning = severity::warning;
    constexpr severity note = severity::note;
    static const std::vector<findingKind> kinds = {
        // ---- hull ----
        {"unread-file", error, "The reader of the mesh's format gets no panels from the file.",
         "Give the file the ending of the format that it holds, or export it again."},
        {"wrong-ending", error, "The file holds another format than its ending says.",
         "Rename the file: .stl for STL, .gdf for WAMIT GDF, .dat for Nemoh."},
        {"unread-records", error,
         "Part of the file is not used, so that the hull is not the one that was drawn.",
         "Export the whole hull as triangles in an STL file, and convert that."},
        {"not-finite", error, "Corners are infinite or not a number.",
         "Export the mesh again from the program that it was drawn with."},
        {"open-edges", error,
         "Edges below the level belong to one panel only: the hull has a hole there.",
         "Close the hole in the meshing program, or merge the corners that should meet."},
        {"half-hull", error,
         "All open edges lie in one vertical plane: the file holds half a hull without saying so.",
         "Set the symmetry flag of the file, or export the whole hull."},
        {"turned-edges", error,
         "Two panels run through an edge in the same direction: the normal of one points inwards.",
         "Make the orientation of the panels uniform in the meshing program."},
        {"branched-edges", error,
         "Edges belong to more than two panels: an inner wall, or a surface that is there twice.",
         "Delete inner walls and doubled surfaces; the mesh is the outer skin alone."},
        {"coincident-panels", error, "Panels have the same three corners.",
         "Delete one panel of each pair."},
        {"inward-normals", error,
         "The normals point into the hull: its volume is negative, and all forces have the wrong "
         "sign.",
         "Turn the normals of all panels in the meshing program."},
        {"panel-in-symmetry-plane", error,
         "Panels lie in the plane of symmetry of a half hull and become an inner wall.",
         "Delete the panels in the plane of symmetry."},
        {"panel-without-area", warning,
         "Panels without area have no normal, which is written as nan.",
         "Delete such panels in the meshing program. In a mesh converted from a Nemoh mesh, cut "
         "with "
         "-wet just below the level."},
        {"tiny-panel", error, "Nemoh refuses wetted panels of less than 1e-7 m2.",
         "Merge nearby corners, or move the level by a few millimetres."},
        {"cut-panel-without-area", error, "The cut at the level leaves panels without area.",
         "Move the level by a few millimetres, or put a line of corners at the level."},
        {"dropped-panels", warning,
         "Panels whose wetted part is thinner than 1e-4 m are dropped by the cut.",
         "Put a line of corners at the level, or move the level by a few millimetres."},
        {"nodes-near-level", warning,
         "Corners lie above the level by less than 1e-4 m: slivers or gaps result.",
         "Move these corners to the level exactly."},
        {"unequal-volumes", error,
         "The volumes from the x, y and z components of the normals differ: the wetted surface is "
         "not closed.",
         "Repair the open and turned edges below the level."},
        {"dry", error, "Nothing of the hull lies below the level.",
         "Check the sign and unit of --origin and --level; the mesh moves by minus the origin."},
        {"submerged", warning, "The hull lies below the level as a whole.",
         "Check --origin and --level, unless the body is meant to be submerged."},
        {"millimetres", error, "The hull is longer than 1000 m: its unit is probably mm.",
         "Export the mesh in metres."},
        {"lid", note,
         "Panels lie in the water plane. They close the hull there and are left out of the "
         "hydrostatics.",
         "Keep them as a lid against irregular frequencies; else delete them."},
        {"long-edges", warning,
         "Edges are long against the shortest wave: above an eighth results are inaccurate, above "
         "a third meaningless.",
         "Refine the mesh, or end the range of frequencies earlier."},
        {"mass-differs", warning,
         "The mass that was given is not the displaced one: the hull does not float at this level.",
         "Correct --mass, --level or --origin."},
        // ---- sea ----
        {"no-sea", error, "The wave elevation task ends with this fatal error.",
         "Correct the key or file that the message names."},
        {"still-water", warning, "The input gives no waves: all elevations are zero.",
         "Give environment.wave.type and an amplitude, and look for misspelt keys by sorvikCheck "
         "input."},
        {"lost-trains", error,
         "A word between the blocks ends the reading of a wave file; the blocks after it are lost.",
         "Remove the text, so that the file holds numbers only."},
        {"few-components", warning,
         "Fewer than ten components hold 90 % of the energy: the sea is almost regular.",
         "Give more components, closer to the peak of the spectrum."},
        {"unresolved-peak", error,
         "The frequencies are too far apart for the peak of the spectrum: period and groups of the "
         "sea are wrong.",
         "Give f0 = fp/2, f1 = 5 fp and more components."},
        {"cut-off-energy", warning,
         "More than 2 % of the spectrum's energy lies outside f0 to f1 and goes to the waves "
         "between them.",
         "Give f0 = fp/2 and f1 = 5 fp."},
        {"height-differs", warning,
         "The components add up to another significant height than the spectrum: their amplitudes "
         "do not depend on the spacing of the frequencies.",
         "Give Hs = height sqrt(spacing), with the spacing in rad/s."},
        {"steep", warning, "The waves are steeper than waves that break.",
         "Check height and period, and their units."},
        {"repeats", warning,
         "The sea repeats itself within the run: the later part brings nothing new.",
         "Give more components, or a shorter run."},
        {"coarse-step", warning,
         "Fewer than four instants fall on a period of the shorter waves: crests are missed, and "
         "statistics of the table are wrong.",
         "Give a smaller simulation.print.dt."},
        {"bad-table", error, "The table of elevations cannot be read.",
         "Give a waveElevation.dat as sorvikPre writes it, with probes."},
        {"table-differs", warning,
         "The heights in the table are not those of the components: the table belongs to another "
         "input.",
         "Run the wave elevation task again, and check the table that it writes."},
        // ---- project ----
        {"unread-project", error,
         "Nemoh 3 stops in Nemoh.cal: it does not find what it reads next.",
         "Correct that line, or make the project again; Nemoh 2 has other lines."},
        {"missing-file", error, "A file or folder that Nemoh 3 reads or writes to is missing.",
         "Make the project again, or copy the file into it."},
        {"bad-file-name", error,
         "Nemoh 3 reads another name of a file, and ends with \"End of file\": a name ends at a "
         "blank, comma, slash or semicolon, and after 80 characters.",
         "Give the file a short name without such characters."},
        {"counts-differ", error, "Files of the project announce different numbers.",
         "Make the files again that are older than Nemoh.cal."},
        {"out-of-range", error, "A number is outside the range in which it has a meaning.",
         "Correct the number."},
        {"above-water", error, "Nodes of the mesh lie above z = 0, the water that Nemoh knows.",
         "Cut the mesh at the water level, as sorvikPre does unless keepMesh is set."},
        {"irregular-frequency", warning,
         "The range reaches an irregular frequency, near which the results are wrong.",
         "End the range below it, or close the mesh by a lid of panels at z = 0."},
        {"no-hydrostatics", note,
         "The project has no file of hydrostatics, which sorvikPre does not write. Motions need "
         "it.",
         "Write it by sorvikCheck hull with --hydrostatics."},
        // ---- results ----
        {"unread-results", error,
         "A file of results is missing, or does not hold what it announces.",
         "Run Nemoh's solver and post-processor again, and see whether they end without an error."},
        {"unsymmetric", warning,
         "Added mass or damping differs from its transpose by more than 5 %: the mesh is too "
         "coarse "
         "or faulty, or a frequency is irregular.",
         "Check the mesh with sorvikCheck hull, and refine it."},
        {"negative-damping", warning,
         "Damping on the diagonal is below 0: waves would feed the motion. Above 5 % of the "
         "largest "
         "damping it is an error.",
         "Check the normals of the mesh; leave out irregular and very low frequencies."},
        {"spike", warning,
         "A value stands out from its neighbouring frequencies: an irregular frequency, a narrow "
         "resonance between bodies or in a moonpool, or too few frequencies.",
         "Refine the frequencies there, or close the mesh by a lid of panels at z = 0."},
    };
    return kinds;
}

} // namespace sorvik
