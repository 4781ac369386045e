% Swell along x and wind sea along y, listed in crossingSea.dat:
%   sorvikPre -waveElevation -f crossingSea.m -positions 0 0 30 -10 -o crossingSea
environment.ground.level = -80; % m
environment.wave = {
   type     = custom;
   file     = crossingSea.dat; % relative to the folder of the run
   rampTime = 10; % s
}
simulation.time.end = 60;   % s
simulation.print.dt = 0.25; % s
