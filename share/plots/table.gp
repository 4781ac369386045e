# Finds the table of a run: expects `folder`, gives `table`.
table = folder."/waveElevation.dat"
problem = need("-d", folder, "the output folder of -waveElevation")
eval refuse
problem = need("-s", table, "the table of elevations that -waveElevation writes")
eval refuse
