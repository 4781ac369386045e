% Regular wave of 2 m height at the three probes of regularWave.xy:
%   sorvikPre -waveElevation -f regularWave.m -xyFile regularWave.xy -o regularWave
environment = {
   wave = {
      type      = regular;
      depth     = 50;    % m
      amplitude = 1.0;   % m
      period    = 8;     % s
      direction = 30;    % degrees from x towards y
      rampTime  = 16;    % s, two periods
   }
}
simulation.time.end = 60;   % s
simulation.print.dt = 0.1;  % s
