environment.wave = { type = regular
                     amplitude = 1
                     period = 8 }
simulation.time.end = 1
simulation.print.dt = 0.5
