% Irregular sea, the same in every run, on a grid of 21 x 11 probes:
%   sorvikPre -waveElevation -f jonswapSea.m -domain 200 100 20 10 -o jonswapSea
environment.wave = {
   type       = JONSWAP;
   Hs         = 2.5;   % m
   fp         = 0.1;   % Hz
   gamma      = 3.3;
   f0         = 0.04;  % Hz
   f1         = 0.4;   % Hz
   components = 60;
   direction  = 15;    % degrees from x towards y
   seed       = 2024;  % -1 draws a new sea in every run
   rampTime   = 20;    % s
}
simulation.time.end = 120;  % s
simulation.print.dt = 0.5;  % s
